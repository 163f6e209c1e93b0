// What objects hold: those of the model from the beginning, others what a macro gave them. Rows of state.txt tell how.

using System;
using System.Collections.Generic;
using System.Linq;

namespace Inkwright
{
    internal static partial class State
    {
        private static readonly Dictionary<string, object[]> held = new Dictionary<string, object[]>();
        private static readonly Dictionary<string, string[]> rows =
            Rows.Select(row => row.Split(' ')).ToDictionary(row => row[0], row => row.Skip(1).ToArray());

        public static void Begin()
        {
            held.Clear();
        }

        public static void Hold(string way, string question, object[] values)
        {
            held[way + "." + question] = values;
        }

        /// What was asked for; nothing when it is not known.
        public static object[] Asked(string on, string call, string[] shown)
        {
            string name = Behind(call, "Get", "get_");
            object[] known;
            return name != null && held.TryGetValue(on + "." + name + "(" + string.Join(",", shown) + ")", out known)
                       ? known
                       : new object[0];
        }

        public static void Tell(string on, string call, object[] arguments, string way)
        {
            string name = Behind(call, "Set", "put_");
            string[] row;
            bool known = rows.TryGetValue(call, out row);
            if (name != null)
                Note(on, name, arguments, known ? int.Parse(row[0]) : 0);
            else if (known)
                TellInsertion(way, row, arguments);
        }

        private static void TellInsertion(string way, string[] row, object[] arguments)
        {
            int next = 0;
            foreach (string field in row) {
                object[] list = arguments[next] is Array ? ((Array)arguments[next]).Cast<object>().ToArray() : null;
                string[] parts = field.Split('*', ':');
                int size = parts.Length > 1 ? int.Parse(parts[1]) : 1;
                object[] values = list ?? arguments.Skip(next).Take(size).ToArray();
                if (field.Contains("*"))
                    NoteList(way, parts[0], list, size);
                else if (field != "-")
                    Note(way, parts[0], values, 0);
                next += list == null ? size : 1;
            }
        }

        private static void NoteList(string way, string name, object[] list, int size)
        {
            for (int at = 0; at < list.Length; at += size) {
                IEnumerable<object> values = list.Skip(at).Take(size);
                if (name.Contains("#"))
                    Note(way, name.Replace("#", (at / size + 1).ToString()), values.ToArray(), 0);
                else
                    Note(way, name, values.Prepend(at / size).ToArray(), 1);
            }
        }

        /// The first arguments tell which one is meant.
        private static void Note(string way, string name, object[] arguments, int which)
        {
            string question = name + "(" + string.Join(",", arguments.Take(which).Select(Json.Of)) + ")";
            object[] values = arguments.Skip(which).ToArray();
            Hold(way, question, values);
            Noting.Log.Append("{\"on\":" + Json.Of(way) + ",\"holds\":" + Json.Of(question) + ",\"values\":"
                              + Json.Of(values) + "}\n");
        }

        private static string Behind(string call, params string[] beginnings)
        {
            string found = Array.Find(beginnings, one => call.StartsWith(one, StringComparison.Ordinal));
            return found == null ? null : call.Substring(found.Length);
        }
    }
}
