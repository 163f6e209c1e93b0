// Runs the macros whose names are given, each with the file of its model, one after the other, and prints what each asked
// for: a line with its name, its calls, and, when it was stopped, where and why.

using System;
using System.Diagnostics;
using System.Reflection;
using System.Text;
using Inkwright;

internal static class RunMacros
{
    private static void Main(string[] arguments)
    {
        Console.OutputEncoding = new UTF8Encoding(false);
        for (int i = 0; i + 1 < arguments.Length; i += 2) {
            string name = arguments[i];
            Noting.Begin();
            OfferedModel.Begin(arguments[i + 1]);
            string stop = Run(name);
            Console.Write("{\"macro\":" + Json.Of(name) + "}\n" + Noting.Log + stop);
        }
    }

    private static string Run(string name)
    {
        Type type = Assembly.GetExecutingAssembly().GetType("IWAPIMacros." + name);
        try {
            type.GetMethod("Run").Invoke(Activator.CreateInstance(type), new object[] { new ApplicationObject("app") });
        } catch (TargetInvocationException wrapped) {
            return Stop(wrapped.InnerException);
        }
        return "";
    }

    private static string Stop(Exception error)
    {
        foreach (StackFrame frame in new StackTrace(error, true).GetFrames())
            if (frame.GetMethod() != null && frame.GetMethod().DeclaringType.Namespace == "IWAPIMacros")
                return "{\"stopped\":" + Json.Of(error.Message) + ",\"line\":" + frame.GetFileLineNumber() + "}\n";
        return "{\"stopped\":" + Json.Of(error.ToString()) + ",\"line\":0}\n";
    }
}
