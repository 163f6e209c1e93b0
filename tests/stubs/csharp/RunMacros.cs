// Runs the macros whose names are given, one after the other. Each is announced by a line with its name, which is answered
// when its drawing is ready, and ended by another one: when it was stopped, with where and why.

using System;
using System.Diagnostics;
using System.Reflection;
using Inkwright;

internal static class RunMacros
{
    private static void Main(string[] names)
    {
        foreach (string name in names) {
            Noting.Output.Write("{\"macro\":" + Json.Of(name) + "}\n");
            string application = Noting.Reply();
            Noting.Output.Write(Run(name, application));
        }
        Noting.Output.Flush();
    }

    private static string Run(string name, string application)
    {
        Type type = Assembly.GetExecutingAssembly().GetType("IWAPIMacros." + name);
        try {
            type.GetMethod("Run").Invoke(Activator.CreateInstance(type),
                                         new object[] { new ApplicationObject(application) });
        } catch (TargetInvocationException wrapped) {
            return Stop(wrapped.InnerException);
        }
        return "{\"stopped\":null}\n";
    }

    private static string Stop(Exception error)
    {
        foreach (StackFrame frame in new StackTrace(error, true).GetFrames())
            if (frame.GetMethod() != null && frame.GetMethod().DeclaringType.Namespace == "IWAPIMacros")
                return Stop(error.Message, frame.GetFileLineNumber());
        return Stop(error.ToString(), 0);
    }

    private static string Stop(string message, int line)
    {
        return "{\"stopped\":{\"message\":" + Json.Of(message) + ",\"line\":" + line + "}}\n";
    }
}
