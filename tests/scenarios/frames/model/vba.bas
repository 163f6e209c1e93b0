'--------------------------------------------------------------
' Preconditions:
' 1. Create a VBA macro in a software product in which VBA is
'    embedded.
' 2. Copy and paste this example into the Visual Basic IDE.
' 3. Add a reference to the Inkwright type library,
'    install_dir\bin\iwAutomation.dll.
' 4. Start Inkwright and open a document.
' 5. Run the macro.
'
' Postconditions: A message box pops up when an Arc is
' constructed in the drawing document.
'----------------------------------------------------------------
Option Explicit
Sub main()
	Dim iwApp As Inkwright.Application
	Dim iwDoc As Inkwright.Document
	Dim iwModel As Inkwright.Model
	Dim iwSketchManager As Inkwright.SketchManager
   Dim iwViewManager As Inkwright.ViewManager
	'Connect to Inkwright
	Set iwApp = GetObject(, "Inkwright.Application")
	'Abort any command currently running in Inkwright
	'to avoid nested commands
	iwApp.AbortRunningCommand

	'Get active document
	Set iwDoc = iwApp.GetActiveDocument()
	If Not iwDoc Is Nothing Then

		'Get model space
		Set iwModel = iwDoc.GetModel()

		'Get Sketch Manager
		Set iwSketchManager = iwModel.GetSketchManager()

        Dim iwSheet As Inkwright.Sheet
        Dim iwVarSheets As Variant
        iwVarSheets = iwDoc.GetSheets
        Set iwSheet = iwVarSheets(1)
        If iwSheet Is Nothing Then
            Return
        End If

		'Get View Manager
		Set iwViewManager = iwDoc.GetViewManager()

<statements>
	Else

		MsgBox "There are no open documents in Inkwright"

	End If
End Sub
