
Imports System.Runtime.InteropServices


Public Class recording

    Sub Run(ByVal iwApp As Inkwright.Application)

        Dim iwDoc As Inkwright.Document
        iwDoc = iwApp.GetActiveDocument()
        If iwDoc Is Nothing Then
            Return
        End If

        Dim iwModel As Inkwright.Model
        iwModel = iwDoc.GetModel()
        If iwModel Is Nothing Then
            Return
        End If

        Dim iwSketchManager As Inkwright.SketchManager
        Dim iwSheet As Inkwright.Sheet
        Dim iwVarSheets As Object
        iwVarSheets = iwDoc.GetSheets()
        iwSheet = iwVarSheets(1)
        If iwSheet Is Nothing Then
            Return
        End If

        iwSheet = iwDoc.GetSheet("<sheet>")
        If iwSheet Is Nothing Then
            Return
        End If

        iwSheet.Activate()
        iwSketchManager = iwSheet.GetSketchManager()
        If iwSketchManager Is Nothing Then
            Return
        End If

        Dim iwViewManager As Inkwright.ViewManager
        iwViewManager = iwDoc.GetViewManager()
        If iwViewManager Is Nothing Then
            Return
        End If

<statements>

    End Sub

End Class