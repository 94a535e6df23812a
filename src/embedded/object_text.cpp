// JSON of values; each form is the one that object_reader reads.
#include "embedded/object_text.h"

#include <array>
#include <charconv>
#include <string_view>

namespace kv
{
namespace
{
QByteArray json(const QString& text)
{
    QByteArray result = "\"";
    for (const char character : text.toUtf8())
    {
        if (character == '"' || character == '\\')
        {
            result += '\\';
            result += character;
        }
        else if (static_cast<unsigned char>(character) < 0x20)
        {
            result += "\\u00" + QByteArray::number(character, 16).rightJustified(2, '0');
        }
        else
        {
            result += character;
        }
    }
    return result + '"';
}

QByteArray json(bool flag)
{
    return flag ? "true" : "false";
}

QByteArray json(std::int32_t number)
{
    return QByteArray::number(number);
}

// The shortest text that reads as the same number.
QByteArray json(double number)
{
    std::array<char, 32> buffer{};
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), static_cast<int>(end - buffer.data())};
}

QByteArray json(OdDbHandle handle)
{
    return json(handle.ascii());
}

QByteArray json(const OdGePoint3d& point)
{
    return '[' + json(point.x) + ',' + json(point.y) + ',' + json(point.z) + ']';
}

QByteArray json(const OdCmColor& color)
{
    switch (color.colorMethod())
    {
    case OdCmColor::Method::ByLayer:
        return "\"byLayer\"";
    case OdCmColor::Method::ByBlock:
        return "\"byBlock\"";
    case OdCmColor::Method::ByIndex:
        return "{\"index\":" + json(std::int32_t(color.colorIndex())) + '}';
    case OdCmColor::Method::ByColor:
        break;
    }
    return "{\"rgb\":[" + json(std::int32_t(color.red())) + ',' + json(std::int32_t(color.green())) + ',' +
           json(std::int32_t(color.blue())) + "]}";
}

template <class Items, class Write>
QByteArray list(const Items& items, Write write)
{
    QByteArray result = "[";
    for (const auto& item : items)
    {
        result += result.size() > 1 ? "," : "";
        result += write(item);
    }
    return result + ']';
}

template <class Items>
QByteArray json(const Items& items)
{
    return list(items, [](const auto& item) { return json(item); });
}

QByteArray coded(const OdResBuf& item)
{
    const int code = item.restype();
    if (code == 1000)
    {
        return json(item.getString());
    }
    const QByteArray value = code < 1010   ? json(item.getString())
                             : code < 1040 ? json(item.getPoint3d())
                             : code < 1070 ? json(item.getDouble())
                                           : json(item.getInt32());
    return "{\"code\":" + json(std::int32_t(code)) + ",\"value\":" + value + '}';
}

// The first item is the application's name.
QByteArray json(const ExtendedData& data)
{
    QByteArray result = "{";
    for (const ApplicationData& application : data)
    {
        result += result.size() > 1 ? "," : "";
        result += json(application.application) + ':' +
                  list(std::vector<OdResBufPtr>(application.items.begin() + 1, application.items.end()),
                       [](const OdResBufPtr& item) { return coded(*item); });
    }
    return result + '}';
}

QByteArray member(const ObjectKey& key, const ObjectValue& value)
{
    const QByteArray name = '"' + QByteArray(key.name.data(), static_cast<int>(key.name.size())) + "\":";
    const auto* handles = std::get_if<HandleList>(&value);
    if (handles != nullptr && key.form == KeyForm::HandleOrNull)
    {
        return name + list(*handles, [](OdDbHandle handle) { return handle.isNull() ? "null" : json(handle); });
    }
    return name + std::visit([](const auto& held) { return json(held); }, value);
}

// An object that lost its last extended data needs no key for it.
bool isEmptyData(const ObjectValue& value)
{
    const auto* data = std::get_if<ExtendedData>(&value);
    return data != nullptr && data->empty();
}
} // namespace

QByteArray ObjectText(OdDbHandle handle, const OdRxClass* objectClass, const ObjectValues& values)
{
    QByteArray text = "{\"object\":{\"class\":" + json(objectClass->name()) + ",\"handle\":" + json(handle);
    for (const auto& [key, value] : values.all())
    {
        if (!isEmptyData(value))
        {
            text += ',' + member(*key, value);
        }
    }
    return text + "}}";
}

QByteArray DrawingText(const ObjectKey& key, const ObjectValue& value)
{
    return "{\"drawing\":{" + member(key, value) + "}}";
}
} // namespace kv
