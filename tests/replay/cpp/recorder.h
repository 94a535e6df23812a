// What stand-ins of the application's C++ API are made of: objects with a number, texts, arrays, pointers, and the
// recorder, which writes each call as a line of JSON. C++11, as the macros are.
#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

struct kvObject;

namespace replay
{
inline std::FILE*& output()
{
    static std::FILE* file = stdout;
    return file;
}

inline int nextNumber()
{
    static int number = 0;
    return ++number;
}

// What the macro's command runs when it is executed.
inline std::function<bool()>& command()
{
    static std::function<bool()> hook;
    return hook;
}

// The enumerator of a name.
template <class T>
T named(const std::string& name);

struct Numbered
{
    int number = nextNumber();
};

inline std::string quoted(const std::wstring& text)
{
    std::string json = "\"";
    for (wchar_t character : text)
    {
        char buffer[16];
        const unsigned long code = static_cast<unsigned long>(character);
        if (code >= 0x10000)
            std::snprintf(buffer, sizeof buffer, "\\u%04lx\\u%04lx", 0xD7C0 + (code >> 10), 0xDC00 + (code & 0x3FF));
        else if (code < 0x20 || code > 0x7E || code == '"' || code == '\\')
            std::snprintf(buffer, sizeof buffer, "\\u%04lx", code);
        else
            std::snprintf(buffer, sizeof buffer, "%c", static_cast<char>(code));
        json += buffer;
    }
    return json + '"';
}

inline std::string json(double value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.17g", value);
    return buffer;
}

inline std::string json(long value)
{
    return std::to_string(value);
}

inline std::string json(bool value)
{
    return value ? "true" : "false";
}

inline std::string object(const char* key, int number)
{
    return std::string("{\"") + key + "\": " + std::to_string(number) + "}";
}

// An entity of the drawing: its type's constant, and the numbers that its getters give.
struct Entity
{
    std::string type;
    std::map<std::string, std::vector<double>> values;
};

// What selections by a window find; drawing.py says how its file looks. Without the file it isn't there.
class Drawing
{
public:
    static Drawing& only()
    {
        static Drawing drawing;
        return drawing;
    }

    void select() { m_selected = m_made < m_selections.size() ? &m_selections[m_made++] : nullptr; }

    void clear() { m_selected = nullptr; }

    // What the last window found.
    const std::vector<Entity>* selection() const { return m_selected; }

    void know(int number, const Entity& entity) { m_known[number] = &entity; }

    const std::vector<double>* values(int number, const std::string& getter) const
    {
        const auto known = m_known.find(number);
        if (known == m_known.end())
            return nullptr;
        const auto found = known->second->values.find(getter);
        return found == known->second->values.end() ? nullptr : &found->second;
    }

private:
    Drawing()
    {
        const char* name = std::getenv("KV_DRAWING");
        std::ifstream file(name ? name : "");
        for (std::string line; std::getline(file, line);)
        {
            std::istringstream words(line);
            std::string word;
            words >> word;
            if (word == "window")
                m_selections.emplace_back();
            else if (word == "entity")
            {
                m_selections.back().emplace_back();
                words >> m_selections.back().back().type;
            }
            else if (words >> word)
                for (double value; words >> value;)
                    m_selections.back().back().values[word].push_back(value);
        }
    }

    std::vector<std::vector<Entity>> m_selections;
    std::size_t m_made = 0;
    const std::vector<Entity>* m_selected = nullptr;
    std::map<int, const Entity*> m_known;
};

// One call; it is written when it ends, so that the objects that it gives back are in it.
class Call
{
public:
    Call(const Numbered* target, const char* type, const char* member)
        : m_target(target->number), m_member(member),
          m_text("{\"object\": " + std::to_string(target->number) + ", \"class\": \"" + type + "\", \"member\": \"" +
                 member + "\", \"arguments\": [")
    {
    }

    ~Call()
    {
        std::fprintf(output(), "%s]}\n", m_text.c_str());
        if (m_member == "SelectByWindow")
            Drawing::only().select();
        else if (m_member == "ClearSelections")
            Drawing::only().clear();
    }

    void add(const std::string& argument)
    {
        m_text += m_arguments.empty() ? "" : ", ";
        m_text += argument;
        m_arguments.push_back(argument);
    }

    // A number that the API gives back: the drawing's, or it tells its place, so that a macro that hands it on shows
    // where it is from.
    double mark()
    {
        if (!m_marks)
            m_getter = m_member + (m_arguments.empty() ? "" : m_arguments[0]);
        const std::vector<double>* values = Drawing::only().values(m_target, m_getter);
        return values ? values->at(m_marks++) : 900000.5 + m_marks++;
    }

    // A whole number that the API gives back.
    long whole() const
    {
        const std::vector<Entity>* selection = Drawing::only().selection();
        return selection && m_member == "GetSelectedObjectCount" ? static_cast<long>(selection->size()) : 1;
    }

    // The type of the entity that the API gives back. Without a drawing macros may pass an address that leads nowhere.
    template <class T>
    void type(T* type) const
    {
        if (const Entity* entity = selected())
            *type = named<T>(entity->type);
    }

    // An object that the API gives back.
    kvObject* entity() const;

private:
    const Entity* selected() const
    {
        const std::vector<Entity>* selection = Drawing::only().selection();
        return selection && m_member == "GetSelectedObject" ? &selection->at(std::stoul(m_arguments.at(1))) : nullptr;
    }

    int m_target;
    std::string m_member;
    std::string m_text;
    std::vector<std::string> m_arguments;
    std::string m_getter;
    int m_marks = 0;
};

// A smart pointer of the API. A call through an empty one reaches an object with the number 0.
template <class T>
class Pointer
{
public:
    Pointer(T* target = nullptr) : m_target(target) {}

    operator T*() const { return m_target; }

    T* operator->() const { return m_target ? m_target : nothing(); }

    T** operator&() { return &m_target; }

private:
    static T* nothing()
    {
        static T object;
        object.number = 0;
        return &object;
    }

    T* m_target;
};
} // namespace replay

class kvString
{
public:
    kvString() = default;

    kvString(const wchar_t* text) : m_text(text) {}

    // The API takes narrow literals, too: some texts of macros have no L before the quote.
    kvString(const char* text) : m_text(text, text + std::char_traits<char>::length(text)) {}

    bool operator==(const kvString& other) const { return m_text == other.m_text; }

    const std::wstring& text() const { return m_text; }

private:
    std::wstring m_text;
};

namespace replay
{
inline std::string json(const kvString& value)
{
    return quoted(value.text());
}

inline std::string json(const kvObject* value);

// An array of the API. What is added to it is recorded, since some arrays are only filled and never handed on.
template <class T>
class Array : public Numbered
{
public:
    void add(T value)
    {
        Call(this, "Array", "add").add(json(value));
        m_values.push_back(value);
    }

    void clear() { m_values.clear(); }

    long getSize() const { return static_cast<long>(m_values.size()); }

    T operator[](long index) const { return m_values.at(static_cast<std::size_t>(index)); }

    std::vector<T>& values() { return m_values; }

    const std::vector<T>& values() const { return m_values; }

private:
    std::vector<T> m_values;
};

template <class T>
std::string json(const Array<T>& array)
{
    std::string text;
    for (const T& value : array.values())
        text += (text.empty() ? "" : ", ") + json(value);
    return "[" + text + "]";
}
} // namespace replay

using kvDoubleArray = replay::Array<double>;
using kvStringArray = replay::Array<kvString>;
using kvObjectPtrArray = replay::Array<kvObject*>;

// The add-in registers its command here.
#define DeclareCommandExecuteNotifyHook
#define ImplementCommandExecuteNotifyHook(type)
#define RegisterCommandExecuteNotifyHook(cmd) replay::command() = [this] { return ExecuteNotify(); }
#define UnRegisterCommandExecuteNotifyHook(cmd) replay::command() = nullptr

struct kvApplicationEvents_c
{
};

struct kvCommandEvents_c
{
};
