// What became of each event of a journal, as a table for people.
#include "cli/event_report.h"

#include "embedded/session.h"
#include "host/kernel/journal_events.h"

#include <algorithm>
#include <array>
#include <vector>

namespace kv::cli
{

namespace
{

struct Description
{
    QString kind; // the word of the journal file
    QString name; // the class or the name
};

template <typename Event>
const Event* As(const OdRxObject& event)
{
    return event.isKindOf(Event::desc()) ? static_cast<const Event*>(&event) : nullptr;
}

QString ClassName(const OdRxClass* objectClass)
{
    return objectClass == nullptr ? QStringLiteral("(no class)") : objectClass->name();
}

QString PromptKind(std::int32_t kind)
{
    static constexpr std::array words{"point",  "angle",   "distance", "orientation", "corner", "scale",
                                      "string", "keyword", "color",    "integer",     "double"};
    const auto index = static_cast<std::size_t>(kind);
    return index < words.size() ? QString::fromLatin1(words.at(index)) : QString::number(kind);
}

QString CommandName(const CZtUserCommand& command)
{
    OdResBufPtr name;
    command.GetCommandName(name);
    return name.get() == nullptr ? QString() : name->getString();
}

Description Describe(const OdRxObject& event)
{
    if (const auto* command = As<CZtUserCommand>(event))
    {
        return {QStringLiteral("command"), CommandName(*command)};
    }
    if (const auto* added = As<CZtObjectAdded>(event))
    {
        return {QStringLiteral("added"), ClassName(added->GetObjectClass())};
    }
    if (const auto* modified = As<CZtObjectModified>(event))
    {
        return {QStringLiteral("modified"), ClassName(modified->GetObjectClass())};
    }
    if (const auto* changed = As<CZtPropertyChanged>(event))
    {
        return {QStringLiteral("changed"), ClassName(changed->GetObjectClass())};
    }
    if (const auto* prompt = As<CZtUserInteraction>(event))
    {
        return {QStringLiteral("prompt"), PromptKind(prompt->GetPromptKind())};
    }
    if (const auto* variable = As<CZtSysVarChanged>(event))
    {
        return {QStringLiteral("sysvar"), variable->GetVariableName()};
    }
    if (const auto* selection = As<CZtUserSelection>(event))
    {
        return {QStringLiteral("select"), QStringLiteral("%1 objects").arg(selection->GetSelectedHandles().size())};
    }
    if (const auto* action = As<CZtCustomAction>(event))
    {
        return {QStringLiteral("action"), QString::number(action->GetActionId())};
    }
    return {QStringLiteral("other"), ClassName(event.isA())};
}

// Calls with every event in the order of the file; null elements are no events.
template <typename Visitor>
void ForEachEvent(const CZtJournal& journal, const Visitor& visit)
{
    for (const OdRxObjectPtr& element : journal)
    {
        if (element.get() == nullptr)
        {
            continue;
        }
        visit(*element);
        if (const auto* command = As<CZtUserCommand>(*element))
        {
            ForEachEvent(command->GetChildEvents(), visit);
        }
    }
}

struct Row
{
    QString line;
    Description event;
    QString result;
};

// What became of the events of one kind.
struct Count
{
    QString kind;
    std::array<int, 4> results{}; // in the order of countedResults, then all others
};

const std::array<QString, 3>& CountedResults()
{
    static const std::array words{QStringLiteral("translated"), QStringLiteral("no text"),
                                  QStringLiteral("not reached")};
    return words;
}

void CountRow(std::vector<Count>& counts, const Row& row)
{
    auto count = std::find_if(counts.begin(), counts.end(), [&](const Count& c) { return c.kind == row.event.kind; });
    if (count == counts.end())
    {
        count = counts.insert(counts.end(), Count{row.event.kind});
    }
    const auto& words = CountedResults();
    const auto result = std::find(words.begin(), words.end(), row.result) - words.begin();
    ++count->results.at(static_cast<std::size_t>(result));
}

QString Table(const std::vector<Row>& rows)
{
    int nameWidth = 4;
    for (const Row& row : rows)
    {
        nameWidth = std::max(nameWidth, row.event.name.size());
    }
    QString text;
    const auto add = [&](const QString& line, const QString& kind, const QString& name, const QString& result)
    {
        text += line.rightJustified(8) + QStringLiteral("  ") + kind.leftJustified(8) + QStringLiteral("  ") +
                name.leftJustified(nameWidth) + QStringLiteral("  ") + result + QLatin1Char('\n');
    };
    add(QStringLiteral("line"), QStringLiteral("event"), QStringLiteral("name"), QStringLiteral("result"));
    for (const Row& row : rows)
    {
        add(row.line, row.event.kind, row.event.name, row.result);
    }
    return text + QLatin1Char('\n');
}

QString Summary(const std::vector<Count>& counts)
{
    QString text;
    const auto add = [&](const QString& kind, const std::array<QString, 5>& cells)
    {
        text += kind.leftJustified(8);
        for (const QString& cell : cells)
        {
            text += cell.rightJustified(13);
        }
        text += QLatin1Char('\n');
    };
    const auto addCounts = [&](const QString& kind, const std::array<int, 4>& results)
    {
        const auto cell = [&](int index) { return QString::number(results.at(static_cast<std::size_t>(index))); };
        add(kind,
            {QString::number(results[0] + results[1] + results[2] + results[3]), cell(0), cell(1), cell(2), cell(3)});
    };

    const auto& words = CountedResults();
    add(QStringLiteral("event"), {QStringLiteral("count"), words[0], words[1], words[2], QStringLiteral("failed")});
    std::array<int, 4> total{};
    for (const Count& count : counts)
    {
        addCounts(count.kind, count.results);
        for (std::size_t i = 0; i < total.size(); ++i)
        {
            total.at(i) += count.results.at(i);
        }
    }
    addCounts(QStringLiteral("all"), total);
    return text;
}

} // namespace

void EventReport::EventConverted(const OdRxObject& event, const QString& text, std::int32_t result)
{
    outcomes_[&event] = {!text.isEmpty(), result};
}

void EventReport::TextWritten(const OdRxObject* event, const QString& text)
{
    (void)event;
    (void)text;
}

QString EventReport::Text(bool summaryOnly) const
{
    const auto result = [&](const OdRxObject& event)
    {
        const auto outcome = outcomes_.find(&event);
        if (outcome == outcomes_.end())
        {
            return QStringLiteral("not reached");
        }
        if (outcome->second.result != ResultNormal)
        {
            return QStringLiteral("failed: %1").arg(outcome->second.result);
        }
        return outcome->second.text ? QStringLiteral("translated") : QStringLiteral("no text");
    };

    std::vector<Row> rows;
    std::vector<Count> counts;
    ForEachEvent(session_.Journal(),
                 [&](const OdRxObject& event)
                 {
                     Row row{QString::number(session_.LineOf(event)), Describe(event), result(event)};
                     CountRow(counts, row);
                     if (!summaryOnly)
                     {
                         rows.push_back(std::move(row));
                     }
                 });
    return (summaryOnly ? QString() : Table(rows)) + Summary(counts);
}

} // namespace kv::cli
