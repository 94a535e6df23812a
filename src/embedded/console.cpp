// Prompts of a command line.
#include "embedded/console.h"

#include "embedded/entity_extents.h"
#include "embedded/prompt_text.h"
#include "host/db/blocks.h"
#include "host/db/classes.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace kv
{
namespace
{
// "x,y" or "x,y,z"; with "@" ahead as a distance from the base. The height is the base's where it isn't given.
std::optional<OdGePoint3d> parsePoint(const QString& answer, const OdGePoint3d& base)
{
    const QString text = answer.trimmed();
    const bool isRelative = text.startsWith(QLatin1Char('@'));
    const QVector<QStringRef> parts = text.midRef(isRelative ? 1 : 0).split(QLatin1Char(','));
    if (parts.size() < 2 || parts.size() > 3)
    {
        return std::nullopt;
    }
    double coordinates[] = {0, 0, isRelative ? 0 : base.z};
    for (int place = 0; place < parts.size(); ++place)
    {
        bool isNumber = false;
        coordinates[place] = parts[place].trimmed().toDouble(&isNumber);
        if (!isNumber || !std::isfinite(coordinates[place]))
        {
            return std::nullopt;
        }
    }
    const OdGeVector3d offset{coordinates[0], coordinates[1], coordinates[2]};
    return (isRelative ? base : OdGePoint3d()) + offset;
}
} // namespace

ResultCode Console::askUntil(const QString& prompt, const std::function<bool(const QString& answer)>& take)
{
    for (;;)
    {
        const std::optional<QString> answer = answers_.Ask(prompt);
        if (!answer)
        {
            return ResultCancelled;
        }
        if (take(*answer))
        {
            return ResultNormal;
        }
    }
}

ResultCode Console::GetKeyword(const CZtPrompt& prompt, CZtString& keyword)
{
    return askUntil(PromptText(prompt, true),
                    [&](const QString& answer)
                    {
                        const QString typed = answer.trimmed();
                        const CZtKeyword* named = FindKeyword(prompt.keywords, typed);
                        if (named == nullptr && !typed.isEmpty())
                        {
                            Print("Invalid option keyword.");
                            return false;
                        }
                        keyword = named != nullptr ? GlobalName(*named) : prompt.defaultKeyword.text();
                        return true;
                    });
}

ResultCode Console::GetString(const CZtPrompt& prompt, CZtString& answer)
{
    const std::optional<QString> typed = answers_.Ask(PromptText(prompt, false));
    if (!typed)
    {
        return ResultCancelled;
    }
    const CZtKeyword* named = FindKeyword(prompt.keywords, typed->trimmed());
    answer = named != nullptr ? GlobalName(*named) : *typed;
    return named != nullptr ? ResultKeyword : ResultNormal;
}

ResultCode Console::askPoint(const QString& text, const OdGePoint3d& base, OdGePoint3d& point)
{
    return askUntil(text,
                    [&](const QString& answer)
                    {
                        const auto parsed = parsePoint(answer, base);
                        if (!parsed)
                        {
                            Print("Invalid point.");
                            return false;
                        }
                        point = *parsed;
                        return true;
                    });
}

ResultCode Console::GetPoint(const CZtPrompt& prompt, OdGePoint3d& point)
{
    return askPoint(PromptText(prompt, false), {}, point);
}

ResultCode Console::GetCorner(const CZtPrompt& prompt, const OdGePoint3d& opposite, OdGePoint3d& corner)
{
    return askPoint(PromptText(prompt, false), opposite, corner);
}

ResultCode Console::GetEntities(CZtSelectionSet& selection)
{
    CZtPrompt prompt;
    prompt.text = "Select entities";
    prompt.keywords.push_back("Window", "_Window");
    prompt.keywords.push_back("ALL", "_ALL");
    for (;;)
    {
        CZtString answer;
        ResultCode asked = GetString(prompt, answer);
        if (asked == ResultCancelled || (asked == ResultNormal && answer.text().trimmed().isEmpty()))
        {
            return asked;
        }
        std::vector<OdDbObjectId> found;
        if (asked == ResultNormal)
        {
            found = byHandles(answer);
        }
        else if (answer == CZtString("_ALL"))
        {
            found = visibleEntities();
        }
        else if (askWindow(found) == ResultCancelled)
        {
            return ResultCancelled;
        }
        for (const OdDbObjectId& id : found)
        {
            selection.append(id);
        }
        Print(QStringLiteral("%1 found, %2 total").arg(found.size()).arg(selection.ids().size()));
    }
}

ResultCode Console::askWindow(std::vector<OdDbObjectId>& found)
{
    OdGePoint3d first;
    OdGePoint3d opposite;
    if (askPoint(QStringLiteral("Specify first corner: "), {}, first) == ResultCancelled ||
        askPoint(QStringLiteral("Specify opposite corner: "), first, opposite) == ResultCancelled)
    {
        return ResultCancelled;
    }
    const Extents window = Extents::between(first, opposite);
    for (const OdDbObjectId& id : visibleEntities())
    {
        const OdDbHandle handle = id.getHandle();
        const auto extents = ExtentsOf(drawing_.classOf(handle), *drawing_.valuesOf(handle));
        if (extents && window.contains(*extents))
        {
            found.push_back(id);
        }
    }
    return ResultNormal;
}

std::vector<OdDbObjectId> Console::byHandles(const QString& answer)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    std::vector<OdDbObjectId> found;
    for (const QString& part : answer.split(separators, Qt::SkipEmptyParts))
    {
        bool isNumber = false;
        const OdDbHandle handle(part.toULongLong(&isNumber, 16));
        if (isNumber && isSelectable(handle, true))
        {
            found.push_back(drawing_.getOdDbObjectId(handle));
        }
        else
        {
            Print(QStringLiteral("No entity has the handle %1.").arg(part));
        }
    }
    return found;
}

// An object of a class that a journal can't describe could not be saved.
bool Console::isSelectable(OdDbHandle handle, bool blocksToo)
{
    const OdRxClass* objectClass = drawing_.classOf(handle);
    return objectClass != nullptr &&
           (objectClass->isDerivedFrom(OdDbEntity::desc()) ||
            (blocksToo && objectClass == OdDbBlockTableRecord::desc())) &&
           FindDatabaseClass(objectClass->name()) == objectClass && !drawing_.valuesOf(handle)->get<bool>("erased");
}

std::vector<OdDbObjectId> Console::visibleEntities()
{
    std::set<OdDbHandle> hidden;
    for (const OdDbHandle handle : drawing_.described())
    {
        const ObjectValues& values = *drawing_.valuesOf(handle);
        if (drawing_.classOf(handle) == OdDbBlockTableRecord::desc() && !values.get<bool>("isLayout"))
        {
            const auto& entities = values.get<HandleList>("entities");
            hidden.insert(entities.begin(), entities.end());
        }
    }
    std::vector<OdDbObjectId> visible;
    for (const OdDbHandle handle : drawing_.handles())
    {
        if (!hidden.contains(handle) && isSelectable(handle, false))
        {
            visible.push_back(drawing_.getOdDbObjectId(handle));
        }
    }
    return visible;
}

ResultCode Console::GetFile(const CZtFileDialog& dialog, CZtString& path)
{
    CZtPrompt prompt;
    prompt.text = dialog.title;
    prompt.hint = dialog.filterText;
    return GetString(prompt, path);
}

ResultCode Console::GetLinetype(const CZtLinetypePrompt& prompt, OdDbObjectId& linetype)
{
    CZtPrompt question;
    question.text = prompt.text;
    CZtString answer;
    const ResultCode asked = GetString(question, answer);
    const QString name = answer.text().trimmed();
    if (asked != ResultNormal || name.isEmpty())
    {
        return asked;
    }
    linetype = editor_.getLinetypeId(name);
    if (linetype.isNull())
    {
        Print(prompt.notFound.text().arg(name));
        Print(prompt.notFoundHint);
    }
    return ResultNormal;
}
} // namespace kv
