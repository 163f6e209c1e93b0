// The objects that a macro finds in the model: a selection by a window offers them.

using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;

namespace Inkwright
{
    internal class Offered
    {
        public string Interface;
        public string Type;
        public string Way;
        public List<double[]> Points = new List<double[]>();

        public bool IsWithin(double[] one, double[] other)
        {
            return Points.Exists(point => {
                for (int axis = 0; axis < 3; ++axis)
                    if (point[axis] < Math.Min(one[axis], other[axis]) - 1e-9
                        || point[axis] > Math.Max(one[axis], other[axis]) + 1e-9)
                        return false;
                return true;
            });
        }
    }

    internal static class OfferedModel
    {
        /// What the last call is answered with, the results behind the arguments first.
        public static readonly Queue<object> Answers = new Queue<object>();

        private static readonly List<Offered> offered = new List<Offered>();
        private static readonly Dictionary<string, double[]> places = new Dictionary<string, double[]>();
        private static List<Offered> selected = new List<Offered>();

        /// A line an object: interface, type, way, and fields of a name and numbers, the points under no name.
        public static void Begin(string file)
        {
            offered.Clear();
            places.Clear();
            selected.Clear();
            State.Begin();
            foreach (string line in File.ReadAllLines(file)) {
                string[] fields = line.Split('\t');
                Offered made = new Offered { Interface = fields[0], Type = fields[1], Way = fields[2] };
                for (int i = 3; i < fields.Length; ++i) {
                    string[] parts = fields[i].Split('=');
                    double[] numbers = Array.ConvertAll(parts[1].Split(','),
                                                        text => double.Parse(text, CultureInfo.InvariantCulture));
                    if (parts[0] == "")
                        made.Points.Add(numbers);
                    else
                        State.Hold(made.Way, parts[0], Array.ConvertAll(numbers, number => (object)number));
                }
                offered.Add(made);
            }
        }

        /// `way` is the way to what the call gives.
        public static void Tell(string on, string call, object[] arguments, string[] shown, string way)
        {
            Answers.Clear();
            if (call == "CreatePoint")
                places[way] = Array.ConvertAll(arguments, Convert.ToDouble);
            else if (call == "SelectByWindow")
                selected = offered.FindAll(one => one.IsWithin(places[((Noting)arguments[0]).Way],
                                                               places[((Noting)arguments[1]).Way]));
            else if (call == "ClearSelections")
                selected.Clear();
            else if (call == "GetSelectedObjectCount")
                Answers.Enqueue(selected.Count);
            else if (call == "GetSelectedObject" && (int)arguments[1] < selected.Count) {
                Answers.Enqueue(selected[(int)arguments[1]].Type);
                Answers.Enqueue(selected[(int)arguments[1]]);
            } else {
                State.Tell(on, call, arguments, way);
                object[] known = State.Asked(on, call, shown);
                foreach (object value in known)
                    if (!(value is Noting))
                        Answers.Enqueue(value);
            }
        }

        /// The object that a call gives: of its own class when the model has it, else of whatever it is taken for.
        public static object Found(string way)
        {
            if (Answers.Count == 0)
                return new FoundObject(way);
            Offered found = (Offered)Answers.Dequeue();
            return Activator.CreateInstance(Type.GetType("Inkwright." + found.Interface + "Object"), found.Way);
        }
    }
}
