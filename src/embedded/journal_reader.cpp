// The order of records: the head first, commands and their ends, what holds for the whole file.
#include "embedded/journal_reader.h"

#include "embedded/event_reader.h"
#include "embedded/line_source.h"
#include "embedded/object_reader.h"

#include <algorithm>

namespace kv
{
namespace
{
constexpr std::int32_t FormatVersion = 1;

bool isBlank(const LineSource::Line& line)
{
    return std::string_view(line.data, line.size).find_first_not_of(" \t\r") == std::string_view::npos;
}

// The line with a fraction behind every integer that has too many digits for the parser, which takes reals of any
// length; the value is the same. Padded for the parser.
simdjson::padded_string withLongIntegersAsReals(std::string_view line)
{
    constexpr std::size_t mostDigits = 18;
    std::string result;
    bool inText = false;
    std::size_t place = 0;
    while (place < line.size())
    {
        const char character = line[place];
        const std::size_t digits =
            inText ? 0 : std::min(line.find_first_not_of("0123456789", place), line.size()) - place;
        const bool escape = inText && character == '\\';
        const std::size_t taken = digits > 0 ? digits : std::min<std::size_t>(escape ? 2 : 1, line.size() - place);
        result += line.substr(place, taken);
        place += taken;
        inText = inText != (character == '"');
        // Digits behind a point or an exponent are no integer, and those before one have their fraction.
        const char before = taken < result.size() ? result[result.size() - taken - 1] : ' ';
        const char after = place < line.size() ? line[place] : ' ';
        if (digits > mostDigits && std::string_view(".eE+").find(before) == std::string_view::npos &&
            std::string_view(".eE").find(after) == std::string_view::npos)
        {
            result += ".0";
        }
    }
    return simdjson::padded_string(result);
}

QVariant readSetting(const JsonNode& node)
{
    // The settings that the conversion asks for are 16-bit integers; of any other the type isn't known here.
    static constexpr std::array<std::string_view, 4> integers = {"TRIMMODE", "EDGEMODE", "CHAMMODE", "FILEDIA"};
    const std::string name = ToText(node.key()).toUpper().toStdString();
    if (std::find(integers.begin(), integers.end(), name) != integers.end())
    {
        return node.integer(INT16_MIN, INT16_MAX);
    }
    if (node.isText())
    {
        return ToText(node.text());
    }
    if (node.isFlag())
    {
        return node.flag();
    }
    if (!node.isNumber())
    {
        node.failExpected(QStringLiteral("a number, a text, true or false"));
    }
    return node.number();
}

class JournalReader
{
public:
    JournalReader(Recording& recording, JournalDiagnostics& diagnostics)
        : recording_(recording), diagnostics_(diagnostics), events_(recording)
    {
    }

    void readAll(LineSource& lines);

private:
    void skipByteOrderMark(LineSource::Line& line) const;
    void readLine(const LineSource::Line& line);
    void readRecord(const JsonNode& node);
    void readHead(const JsonNode& node);
    void readSettings(const JsonNode& node);
    void readTranslations(const JsonNode& node);
    void beginCommand(const JsonNode& node);
    void endCommand(const JsonNode& node);
    void append(OdRxObjectPtr event);
    void finish();
    void fault(const QString& message) { diagnostics_.AddFault(lineNumber_, message); }

    Recording& recording_;
    JournalDiagnostics& diagnostics_;
    EventReader events_;
    simdjson::dom::parser parser_;
    std::int64_t lineNumber_ = 0;
    bool anyRecord_ = false;
    bool headSeen_ = false;
    OdSmartPtr<UserCommand> openCommand_;
    QString openName_;
    std::int64_t openLine_ = 0;
    QStringList interrupted_; // commands that another one cut off, whose ends may still come
};

void JournalReader::readAll(LineSource& lines)
{
    LineSource::Line line;
    while (lines.next(line))
    {
        ++lineNumber_;
        skipByteOrderMark(line);
        if (!isBlank(line))
        {
            readLine(line);
            anyRecord_ = true;
        }
    }
    if (lines.failed())
    {
        diagnostics_.AddFault(0, QStringLiteral("the file can't be read to its end"));
    }
    finish();
}

void JournalReader::skipByteOrderMark(LineSource::Line& line) const
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (lineNumber_ == 1 && std::string_view(line.data, line.size).substr(0, mark.size()) == mark)
    {
        line.data += mark.size();
        line.size -= mark.size();
    }
}

void JournalReader::readLine(const LineSource::Line& line)
{
    simdjson::dom::element element;
    // The source keeps enough bytes behind the line.
    simdjson::error_code error = parser_.parse(line.data, line.size, false).get(element);
    if (error == simdjson::NUMBER_ERROR)
    {
        error = parser_.parse(withLongIntegersAsReals({line.data, line.size})).get(element);
    }
    if (error != simdjson::SUCCESS)
    {
        if (line.ended)
        {
            fault(QStringLiteral("the line isn't JSON (%1), one object or null was expected")
                      .arg(QLatin1String(simdjson::error_message(error))));
        }
        else
        {
            diagnostics_.AddRemark(lineNumber_, QStringLiteral("the last line is cut off; it is left out"));
        }
        return;
    }
    try
    {
        readRecord(JsonNode(element));
    }
    catch (const BadInput& bad)
    {
        fault(bad.message);
    }
}

void JournalReader::readRecord(const JsonNode& node)
{
    const bool first = !anyRecord_;
    if (node.isNull())
    {
        if (first)
        {
            node.fail(QStringLiteral("the first record is null, \"journal\" was expected"));
        }
        append({});
        return;
    }
    const JsonNode record = node.onlyMember("null or an object with one key");
    const std::string_view key = record.key();
    if (first && key != "journal")
    {
        fault(QStringLiteral("the first record is %1, \"journal\" was expected").arg(Quoted(key)));
    }

    if (OdRxObjectPtr event = events_.read(record, lineNumber_))
    {
        append(std::move(event));
    }
    else if (key == "command")
    {
        beginCommand(record);
    }
    else if (key == "end")
    {
        endCommand(record);
    }
    else if (key == "object")
    {
        ReadObject(record, lineNumber_, *recording_.drawing);
    }
    else if (key == "journal")
    {
        readHead(record);
    }
    else if (key == "drawing")
    {
        ReadDrawingValues(record, *recording_.drawing);
    }
    else if (key == "settings")
    {
        readSettings(record);
    }
    else if (key == "translations")
    {
        readTranslations(record);
    }
    else
    {
        node.failUnknownKey(key, QStringLiteral("one of journal, drawing, settings, translations, object, command, "
                                                "end, added, modified, changed, prompt, sysvar, select, action, "
                                                "other"));
    }
}

void JournalReader::readHead(const JsonNode& node)
{
    if (anyRecord_)
    {
        node.fail(headSeen_ ? QStringLiteral("\"journal\" stands a second time, once was expected")
                            : QStringLiteral("\"journal\" was expected as the first record, not here"));
    }
    headSeen_ = true;
    bool hasVersion = false;
    node.forEachMember(
        "an object",
        [&](const JsonNode& member)
        {
            if (member.key() == "version")
            {
                hasVersion = true;
                const std::int32_t version = member.integer();
                if (version != FormatVersion)
                {
                    member.fail(
                        QStringLiteral("version %1 is unknown, %2 was expected").arg(version).arg(FormatVersion));
                }
            }
            else if (member.key() == "recordingMode")
            {
                recording_.recordingMode = member.integer();
            }
            else if (member.key() == "source")
            {
                static_cast<void>(member.text());
            }
            else
            {
                diagnostics_.AddRemark(lineNumber_, QStringLiteral("the unknown key %1 of \"journal\" "
                                                                   "is ignored")
                                                        .arg(Quoted(member.key())));
            }
        });
    if (!hasVersion)
    {
        node.failMissingKey("version");
    }
}

void JournalReader::readSettings(const JsonNode& node)
{
    node.forEachMember("an object", [&](const JsonNode& member)
                       { recording_.settings.set(ToText(member.key()), readSetting(member)); });
}

void JournalReader::readTranslations(const JsonNode& node)
{
    node.forEachMember(
        "an object",
        [&](const JsonNode& context)
        {
            context.forEachMember(
                "an object", [&](const JsonNode& word)
                { recording_.translations.add(ToText(context.key()), ToText(word.key()), ToText(word.text())); });
        });
}

void JournalReader::beginCommand(const JsonNode& node)
{
    const QString name = ToText(node.text());
    OdSmartPtr<UserCommand> command = events_.command(node, lineNumber_);
    if (openCommand_)
    {
        fault(QStringLiteral("the command %1 begins inside the command %2 of line %3, its end was expected first")
                  .arg(Quoted(node.text()), Quoted(openName_.toStdString()))
                  .arg(openLine_));
        interrupted_ += openName_;
        openCommand_.reset();
    }
    append(command);
    openCommand_ = std::move(command);
    openName_ = name;
    openLine_ = lineNumber_;
}

void JournalReader::endCommand(const JsonNode& node)
{
    const QString name = ToText(node.text());
    if (!openCommand_)
    {
        // The end of a command that was told of as interrupted is no fault of its own.
        if (!interrupted_.removeOne(name))
        {
            node.fail(QStringLiteral("the command %1 ends, but no command is open; \"command\" was expected before")
                          .arg(Quoted(node.text())));
        }
        return;
    }
    openCommand_.reset();
    if (name != openName_)
    {
        node.fail(QStringLiteral("the command %1 ends, but the end of %2 of line %3 was expected")
                      .arg(Quoted(node.text()), Quoted(openName_.toStdString()))
                      .arg(openLine_));
    }
}

void JournalReader::append(OdRxObjectPtr event)
{
    recording_.eventCount += event ? 1 : 0;
    if (openCommand_)
    {
        openCommand_->append(std::move(event));
    }
    else
    {
        recording_.journal.append(std::move(event));
    }
}

void JournalReader::finish()
{
    if (openCommand_)
    {
        diagnostics_.AddRemark(lineNumber_, QStringLiteral("the command %1 of line %2 is open at the end of the file; "
                                                           "it counts as ended there")
                                                .arg(Quoted(openName_.toStdString()))
                                                .arg(openLine_));
    }
    if (!headSeen_ && diagnostics_.faultCount == 0)
    {
        diagnostics_.AddFault(1, QStringLiteral("the file has no records, \"journal\" was expected first"));
    }
    recording_.drawing->complete();
    events_.resolve();
}
} // namespace

void ReadJournal(QIODevice& device, Recording& recording, JournalDiagnostics& diagnostics)
{
    LineSource lines(device);
    JournalReader(recording, diagnostics).readAll(lines);
}
} // namespace kv
