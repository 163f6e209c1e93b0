

Module Module1

    Sub Main()

        Dim iwApp As Inkwright.Application
        Dim application As Object

        iwApp = Nothing
        application = Nothing

        Try
            application = System.Runtime.InteropServices.Marshal.GetActiveObject("Inkwright.Application")
            Exit Try
        Catch ex As Exception
            Return
        End Try

        If application IsNot Nothing Then
            iwApp = application
        Else
            Return
        End If

        If iwApp IsNot Nothing Then
            Dim recordingObj As recording
            recordingObj = New recording()
            recordingObj.Run(iwApp)
        End If

    End Sub

End Module
