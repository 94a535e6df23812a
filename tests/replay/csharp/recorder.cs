// What stand-ins of the application's automation are made of: objects with a number, and the recorder, which writes each
// call as a line of JSON in the form of the C++ API, whatever the language does with results.
using System;
using System.Collections.Generic;
using System.Globalization;
using System.Runtime.InteropServices;
using System.Text;

namespace Replay
{
    public class Numbered
    {
        static int s_numbers = 0;

        public readonly int Number = ++s_numbers;
    }

    // One call; arguments are told in the API's order.
    public class Call
    {
        readonly StringBuilder m_text = new StringBuilder();
        bool m_first = true;
        int m_marks = 0;

        public Call(Numbered target, string type, string member)
        {
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

        // Any other value that the API gives back. Numbers with a fraction tell their place, so that a macro that hands
        // them on shows where they are from.
        public T Give<T>(T value, object before)
        {
            AddText(before == null ? "null" : Json(before));
            return value;
        }

        public double Mark()
        {
            return 900000.5 + m_marks++;
        }

        public void End()
        {
            Console.WriteLine(m_text + "]}");
        }

        void AddText(string text)
        {
            m_text.Append(m_first ? "" : ", ").Append(text);
            m_first = false;
        }

        static string Json(object value)
        {
            if (value is DispatchWrapper)
                value = ((DispatchWrapper)value).WrappedObject;
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
