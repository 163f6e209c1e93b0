// What the objects of the automation interface have in common here: each tells standard output what it is asked for, and
// reads from standard input what it answers. Who stands at the other end has the drawing.

using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Text;

namespace IWAPIMacros
{
    /// Stands in front of the system's own, which takes nothing but objects of COM.
    internal class DispatchWrapper
    {
        public readonly object Wrapped;

        public DispatchWrapper(object wrapped)
        {
            Wrapped = wrapped;
        }
    }
}

namespace Inkwright
{
    internal class Noting
    {
        public static readonly TextWriter Output =
            new StreamWriter(Console.OpenStandardOutput(), new UTF8Encoding(false), 1 << 16);
        private static readonly TextReader input = new StreamReader(Console.OpenStandardInput(), new UTF8Encoding(false));
        private static readonly Queue<string> answers = new Queue<string>();

        public readonly string Id;

        protected Noting(string id)
        {
            Id = id;
        }

        /// `types` are those of its results, the result in front of the out parameters; each of them is then the next
        /// answer.
        protected void Ask(string call, string types, params object[] arguments)
        {
            string[] shown = Array.ConvertAll(arguments, Json.Of);
            Output.Write("{\"on\":" + Id + ",\"call\":\"" + call + "\",\"types\":[" + types + "],\"args\":["
                         + string.Join(",", shown) + "]}\n");
            if (types != "")
                foreach (string answer in Reply().Split('\t'))
                    answers.Enqueue(Uri.UnescapeDataString(answer));
        }

        public static string Reply()
        {
            Output.Flush();
            return input.ReadLine();
        }

        public static string Next()
        {
            return answers.Dequeue();
        }

        /// An object that is found: of its own class when the drawing has it, else of whatever it is taken for.
        public static object Found(string told)
        {
            string[] parts = told.Split(' ');
            return Activator.CreateInstance(Type.GetType("Inkwright." + parts[1] + "Object"), parts[0]);
        }

        public static T Value<T>(string told)
        {
            return (T)(typeof(T).IsEnum ? Enum.Parse(typeof(T), told)
                                        : Convert.ChangeType(told, typeof(T), CultureInfo.InvariantCulture));
        }

        public static object List<T>(string told, Func<string, T> element)
        {
            return Array.ConvertAll(told.Split(new[] { ',' }, StringSplitOptions.RemoveEmptyEntries), one => element(one));
        }
    }

    internal static class Json
    {
        public static string Of(object value)
        {
            if (value == null)
                return "null";
            if (value is Noting)
                return "{\"thing\":" + ((Noting)value).Id + "}";
            if (value is IWAPIMacros.DispatchWrapper)
                return Of(((IWAPIMacros.DispatchWrapper)value).Wrapped);
            if (value is double)
                return ((double)value).ToString("R", CultureInfo.InvariantCulture);
            if (value is int || value is long)
                return Convert.ToString(value, CultureInfo.InvariantCulture);
            if (value is bool)
                return (bool)value ? "true" : "false";
            if (value is Enum)
                return Of(value.ToString());
            if (value is Array) {
                List<string> elements = new List<string>();
                foreach (object element in (Array)value)
                    elements.Add(Of(element));
                return "[" + string.Join(",", elements.ToArray()) + "]";
            }
            StringBuilder text = new StringBuilder("\"");
            foreach (char c in value.ToString())
                text.Append(c == '"' || c == '\\' ? "\\" + c : c < ' ' ? "\\u" + ((int)c).ToString("x4") : "" + c);
            return text.Append('"').ToString();
        }
    }
}
