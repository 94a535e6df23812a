// Replacing lines by their numbers.
#include "embedded/journal_writer.h"

#include "embedded/object_text.h"

#include <simdjson.h>

#include <unordered_map>

namespace kv
{
namespace
{
QByteArray textOf(Drawing& drawing, OdDbHandle handle)
{
    return ObjectText(handle, drawing.classOf(handle), *drawing.valuesOf(handle));
}

// A last line without line end that a crash cut off.
bool isCutOff(const QByteArray& line)
{
    simdjson::dom::parser parser;
    const auto error =
        parser.parse(simdjson::padded_string(line.constData(), static_cast<std::size_t>(line.size()))).error();
    return error != simdjson::SUCCESS && error != simdjson::NUMBER_ERROR && error != simdjson::EMPTY;
}
} // namespace

QByteArray WithChanges(const QByteArray& source, Drawing& drawing)
{
    std::unordered_map<std::int64_t, OdDbHandle> changedLines;
    std::vector<OdDbHandle> added;
    for (const OdDbHandle handle : drawing.described())
    {
        if (!drawing.isChanged(handle))
        {
            continue;
        }
        if (const std::int64_t line = drawing.lineOf(handle); line > 0)
        {
            changedLines.emplace(line, handle);
        }
        else
        {
            added.push_back(handle);
        }
    }

    QByteArray result;
    result.reserve(source.size());
    std::int64_t number = 0;
    for (int begin = 0; begin < source.size();)
    {
        ++number;
        const int found = source.indexOf('\n', begin);
        const int end = found < 0 ? source.size() : found;
        const auto changed = changedLines.find(number);
        if (changed != changedLines.end())
        {
            result += textOf(drawing, changed->second) + '\n';
        }
        else if (found >= 0 || !isCutOff(source.mid(begin)))
        {
            result.append(source.constData() + begin, end - begin).append('\n');
        }
        begin = end + 1;
    }
    for (const OdDbHandle handle : added)
    {
        result += textOf(drawing, handle) + '\n';
    }
    for (const ObjectKey* key : drawing.changedValues())
    {
        result += DrawingText(*key, *drawing.values().find(key->name)) + '\n';
    }
    return result;
}
} // namespace kv
