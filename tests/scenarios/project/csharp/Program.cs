using System;

namespace recording
{
    static class Program
    {
        /// <summary>
       /// The main entry point for the application.
        /// </summary>
       [STAThread]
       static void Main()
       {
           Inkwright.Application iwApp = null;
           object application = null;

           try
           {
                application = System.Runtime.InteropServices.Marshal.GetActiveObject("Inkwright.Application");
           }
           catch (Exception)
           {
               //application not running
               return;
           }

           if (null != application)
           {
               iwApp = application as Inkwright.Application;
           }

           if (null != iwApp)
           {
               IWAPIMacros.recording recordingObj = new IWAPIMacros.recording();
               recordingObj.Run(iwApp);
           }
       }
   }
}
