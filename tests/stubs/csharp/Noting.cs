// What the objects of the automation interface have in common here: each knows the way that led to it, and notes what
// it is asked for.

using System;
using System.Collections.Generic;
using System.Globalization;
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
        public static readonly StringBuilder Log = new StringBuilder();
        private static readonly Dictionary<string, int> counts = new Dictionary<string, int>();

        public readonly string Way;

        public static void Begin()
        {
            Log.Clear();
            counts.Clear();
        }

        protected Noting(string way)
        {
            Way = way;
        }

        /// Objects that take several values to get, and inserted ones, are named by a number, so that their way stays
        /// short.
        protected string Note(string call, string result, params object[] arguments)
        {
            string[] shown = Array.ConvertAll(arguments, Json.Of);
            Log.Append("{\"on\":" + Json.Of(Way) + ",\"call\":\"" + call + "\",\"args\":[" + string.Join(",", shown)
                       + "]}\n");
            string way = WayTo(call, result, shown);
            OfferedModel.Tell(Way, call, arguments, shown, way);
            return way;
        }

        private string WayTo(string call, string result, string[] shown)
        {
            if (shown.Length < 2 && !call.StartsWith("Insert", StringComparison.Ordinal))
                return Way + "." + call + "(" + string.Join("", shown) + ")";
            int count;
            counts.TryGetValue(result, out count);
            counts[result] = ++count;
            return result + "#" + count;
        }
    }

    internal static class Values
    {
        public static T Of<T>(string way)
        {
            if (OfferedModel.Answers.Count > 0) {
                object known = OfferedModel.Answers.Dequeue();
                return (T)(typeof(T).IsEnum ? Enum.Parse(typeof(T), known.ToString())
                                            : Convert.ChangeType(known, typeof(T), CultureInfo.InvariantCulture));
            }
            return typeof(T) == typeof(string) ? (T)(object)"" : default(T);
        }
    }

    /// For an object that a macro asks although nothing gave it.
    public static class Given
    {
        public static void Object<T>(out T value)
        {
            string name = typeof(T).Name;
            value = (T)Activator.CreateInstance(Type.GetType("Inkwright." + name + "Object"), "given " + name);
        }
    }

    internal static class Arrays
    {
        /// Two elements: a macro takes the second of a document's sheets.
        public static object Of<T>(string way, Func<string, T> element)
        {
            return new[] { element(way + "[0]"), element(way + "[1]") };
        }
    }

    internal static class Json
    {
        public static string Of(object value)
        {
            if (value == null)
                return "null";
            if (value is Noting)
                return Of("@" + ((Noting)value).Way);
            if (value is IWAPIMacros.DispatchWrapper)
                return Of(((IWAPIMacros.DispatchWrapper)value).Wrapped);
            if (value is double)
                return ((double)value).ToString("R", CultureInfo.InvariantCulture);
            if (value is int)
                return ((int)value).ToString(CultureInfo.InvariantCulture);
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
