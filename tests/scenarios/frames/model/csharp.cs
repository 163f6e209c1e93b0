using System;
using Inkwright;
using System.Runtime.InteropServices;

// This code was automatically generated.
namespace IWAPIMacros
{
    class recording
    {
        public void Run( Inkwright.Application iwApp )
        {
            Document iwDoc = iwApp.GetActiveDocument();
            if (null == iwDoc)
            {
                return;
            }

            Model iwModel = iwDoc.GetModel();
            if (null == iwModel)
            {
                return;
            }

            SketchManager iwSketchManager;
            iwSketchManager = iwModel.GetSketchManager();
            if (null == iwSketchManager)
            {
                return;
            }

            object[] sheetsList = (object[])iwDoc.GetSheets();
            Sheet iwSheet = (Sheet)sheetsList[1];
            if (null == iwSheet)
            {
                 return;
            }

            ViewManager iwViewManager = iwDoc.GetViewManager();
            if (null == iwViewManager)
            {
                return;
            }

<statements>
        }
    }
}
