// What stand-ins of the application's automation are made of: objects with a number, and the recorder, which writes each
// call as a line of JSON in the form of the C++ API, whatever the language does with results.
using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;

namespace Replay
{
    public class Numbered
    {
        static int s_numbers = 0;

        public readonly int Number = ++s_numbers;
    }

    // An entity of the drawing: its type, and the numbers that its getters give.
    public class Entity
    {
        public Morvane.kvObjectType_e Type;
        public readonly Dictionary<string, double[]> Values = new Dictionary<string, double[]>();
    }

    // What selections by a window find; drawing.py says how its file looks. Without the file it isn't there.
    public static class Drawing
    {
        static readonly List<List<Entity>> s_selections = Read(Environment.GetEnvironmentVariable("KV_DRAWING"));
        static readonly Dictionary<int, Entity> s_known = new Dictionary<int, Entity>();
        static int s_made = 0;

        // What the last window found.
        public static List<Entity> Selection { get; private set; }

        public static void Select()
        {
            Selection = s_made < s_selections.Count ? s_selections[s_made++] : null;
        }

        public static void Clear()
        {
            Selection = null;
        }

        public static void Know(int number, Entity entity)
        {
            s_known[number] = entity;
        }

        public static double[] Values(int number, string getter)
        {
            return s_known.ContainsKey(number) && s_known[number].Values.ContainsKey(getter)
                       ? s_known[number].Values[getter] : null;
        }

        static List<List<Entity>> Read(string file)
        {
            List<List<Entity>> selections = new List<List<Entity>>();
            foreach (string line in string.IsNullOrEmpty(file) ? new string[0] : File.ReadAllLines(file))
            {
                string[] words = line.Split(' ');
                if (words[0] == "window")
                    selections.Add(new List<Entity>());
                else if (words[0] == "entity")
                    selections[selections.Count - 1].Add(new Entity { Type =
                        (Morvane.kvObjectType_e)Enum.Parse(typeof(Morvane.kvObjectType_e), words[1]) });
                else
                {
                    List<Entity> last = selections[selections.Count - 1];
                    double[] values = new double[words.Length - 2];
                    for (int i = 0; i < values.Length; ++i)
                        values[i] = double.Parse(words[i + 2], CultureInfo.InvariantCulture);
                    last[last.Count - 1].Values[words[1]] = values;
                }
            }
            return selections;
        }
    }

    // One call; arguments are told in the API's order.
    public class Call
    {
        readonly int m_target;
        readonly string m_member;
        readonly StringBuilder m_text = new StringBuilder();
        readonly List<string> m_arguments = new List<string>();
        string m_getter;
        int m_marks = 0;

        public Call(Numbered target, string type, string member)
        {
            m_target = target.Number;
            m_member = member;
            m_text.Append("{\"object\": " + target.Number + ", \"class\": \"" + type + "\", \"member\": \"" + member +
                          "\", \"arguments\": [");
        }

        public void Add(object value)
        {
            AddText(Json(value));
        }

        // An object that the API gives back.
        public T Give<T>(T value) where T : class
        {
            AddText("{\"out\": " + ((Numbered)(object)value).Number + "}");
            return value;
        }

        // Any other value that the API gives back.
        public T Give<T>(T value, object before)
        {
            AddText(before == null ? "null" : Json(before));
            return value;
        }

        // A number: the drawing's, or it tells its place, so that a macro that hands it on shows where it is from.
        public double Mark()
        {
            if (m_getter == null)
                m_getter = m_member + (m_arguments.Count > 0 ? m_arguments[0] : "");
            double[] values = Drawing.Values(m_target, m_getter);
            return values != null ? values[m_marks++] : 900000.5 + m_marks++;
        }

        public int Whole()
        {
            return m_member == "GetSelectedObjectCount" && Drawing.Selection != null ? Drawing.Selection.Count : 1;
        }

        public Morvane.kvObjectType_e Type()
        {
            return Selected() != null ? Selected().Type : 0;
        }

        public object Found()
        {
            Morvane.Made made = new Morvane.Made();
            if (Selected() != null)
                Drawing.Know(made.Number, Selected());
            return made;
        }

        public void End()
        {
            Console.WriteLine(m_text + "]}");
            if (m_member == "SelectByWindow")
                Drawing.Select();
            else if (m_member == "ClearSelections")
                Drawing.Clear();
        }

        Entity Selected()
        {
            return m_member == "GetSelectedObject" && Drawing.Selection != null
                       ? Drawing.Selection[int.Parse(m_arguments[1])] : null;
        }

        void AddText(string text)
        {
            m_text.Append(m_arguments.Count > 0 ? ", " : "").Append(text);
            m_arguments.Add(text);
        }

        static string Json(object value)
        {
            // The system's, or the one of a macro's driver where the system's wraps nothing.
            if (value != null && value.GetType().Name == "DispatchWrapper")
                value = value.GetType().GetProperty("WrappedObject").GetValue(value, null);
            if (value == null)
                return "null";
            if (value is string)
                return Quoted((string)value);
            if (value is bool)
                return (bool)value ? "true" : "false";
            if (value is double)
                return ((double)value).ToString("R", CultureInfo.InvariantCulture);
            if (value is Enum)
                return Quoted(value.ToString());
            if (value is Array)
            {
                List<string> items = new List<string>();
                foreach (object item in (Array)value)
                    items.Add(Json(item));
                return "[" + string.Join(", ", items.ToArray()) + "]";
            }
            if (value is Numbered)
                return "{\"object\": " + ((Numbered)value).Number + "}";
            return Convert.ToString(value, CultureInfo.InvariantCulture);
        }

        static string Quoted(string text)
        {
            StringBuilder json = new StringBuilder("\"");
            foreach (char character in text)
            {
                if (character < ' ' || character > '~' || character == '"' || character == '\\')
                    json.AppendFormat("\\u{0:x4}", (int)character);
                else
                    json.Append(character);
            }
            return json.Append('"').ToString();
        }
    }
}
