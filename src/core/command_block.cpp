// One user command with its children becomes one scoped block of the macro, or no text at all.
#include "core/converter_impl.h"
#include "core/event_cast.h"
#include "core/macro_writer.h"
#include "core/type_table.h"
#include "core/variable_names.h"
#include "host/db/blocks.h"
#include "host/db/polylines.h"
#include "host/db/symbols.h"
#include "host/db/text.h"
#include "host/kernel/services.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{
// Custom actions that the block treats apart.
enum BlockAction : std::int32_t
{
    kPolyline2DBlock = 16,
    kBackgroundOptions = 39,
    kPolygonalViewport = 44,
};

// Classes whose variable is filled by a custom action of the same command.
bool IsFilledByAction(const OdRxClass* objectClass)
{
    static const std::array classes = {OdDbOle2Frame::desc(),       OdDbPolyline::desc(), OdDbHatch::desc(),
                                       OdDbViewTableRecord::desc(), OdDbRegion::desc(),   OdDbRasterImage::desc()};
    return std::ranges::find(classes, objectClass) != classes.end();
}

// True for the text style that stands for the shapes of line styles, which the user never made.
bool IsLinetypeShapeStyle(const CZtObjectAdded& event)
{
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (event.GetObjectClass() != OdDbTextStyleTableRecord::desc() || document == nullptr)
    {
        return false;
    }
    const OdDbObjectPtr object = document->GetZtDatabase()->getOdDbObjectId(event.GetObjectHandle()).openObject();
    const auto style = OdSmartPtr<OdDbTextStyleTableRecord>::cast(object);
    return style && style->isShapeFile() && style->fileName() == QLatin1String("LTypeShp.shx");
}

// Restores a counter at the end of a scope.
class CounterScope
{
public:
    explicit CounterScope(std::int32_t& counter) : counter_(counter), saved_(std::exchange(counter, 0)) {}
    ~CounterScope() { counter_ = saved_; }
    CounterScope(const CounterScope&) = delete;
    CounterScope& operator=(const CounterScope&) = delete;

private:
    std::int32_t& counter_;
    std::int32_t saved_;
};
} // namespace

QString CZtConverterKVAPIImpl::DeclareVariable(const ObjectPair& object)
{
    const QString* name = VariableType(object.objectClass);
    return name != nullptr ? WriteDeclareVariable(*name, VariableStem(*name, PlainPointerMark::Removed), object.number)
                           : QString();
}

std::vector<ObjectPair> CZtConverterKVAPIImpl::CollectCommandObjects(const CZtJournal& childEvents)
{
    std::vector<ObjectPair> objects;
    objects.reserve(childEvents.size());
    for (const OdRxObjectPtr& child : childEvents)
    {
        const auto* added = kv::EventAs<CZtObjectAdded>(child.get());
        if (added == nullptr)
        {
            continue;
        }
        const OdRxClass* objectClass = added->GetObjectClass();
        static_cast<void>(ObjectConverter()); // nothing can be named without the object logic
        if (objectClass == nullptr || !kv::FactsOf(objectClass).isSupported)
        {
            continue;
        }
        // A note that belongs to a leader is created together with it.
        if (objectClass == OdDbMText::desc() && !FindAttachedLeader(added->GetObjectHandle()).isNull())
        {
            continue;
        }
        objects.push_back(RegisterObject(added->GetObjectHandle(), objectClass));
    }
    return objects;
}

OdDbObjectId CZtConverterKVAPIImpl::FindAttachedLeader(OdDbHandle handle)
{
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (document == nullptr)
    {
        return {};
    }
    const OdDbObjectPtr object = document->GetZtDatabase()->getOdDbObjectId(handle).openObject();
    const auto note = OdSmartPtr<OdDbMText>::cast(object);
    if (!note)
    {
        return {};
    }
    for (const OdDbObjectId& id : note->getPersistentReactors())
    {
        const OdDbObjectPtr reactor = id.openObject();
        if (reactor && reactor->isKindOf(OdDbLeader::desc()))
        {
            return id;
        }
    }
    return {};
}

ResultCode CZtConverterKVAPIImpl::ConvertUserCommand(MacroWriter& writer, const CZtUserCommand& command)
{
    const CZtJournal& childEvents = command.GetChildEvents();
    QString blockHead;
    QStringList pendingVariables;
    for (const ObjectPair& object : CollectCommandObjects(childEvents))
    {
        blockHead += DeclareVariable(object);
        const QString* name = IsFilledByAction(object.objectClass) ? VariableType(object.objectClass) : nullptr;
        if (name != nullptr)
        {
            pendingVariables.append(VariableName(*name, object.number, PlainPointerMark::Removed));
        }
    }
    const QString pendingVariable = pendingVariables.isEmpty() ? QString() : pendingVariables.back();
    // The declarations stand in the enclosing scope and outlive the block.
    blockHead += WriteBlockBegin();

    const CounterScope localNames(counters_.LocalNameSequence);
    int nextPendingVariable = 0;
    bool hasOwnScope = false;
    bool anonymousAction = false;
    bool allEmpty = true;
    bool linetypeShapeStyle = false;
    std::vector<std::pair<const OdRxObject*, QString>> eventTexts;
    const std::size_t count = childEvents.size();
    eventTexts.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
    {
        OdRxObject* child = childEvents[i].get();
        QString text;
        if (const auto* action = kv::EventAs<CZtCustomAction>(child))
        {
            const std::int32_t id = action->GetActionId();
            text = pendingVariable;
            if (id == kBackgroundOptions)
            {
                if (pendingVariables.size() > 1)
                {
                    text = pendingVariables.value(nextPendingVariable++);
                }
                anonymousAction = text.isEmpty();
            }
            if (id == kPolyline2DBlock || id == kPolygonalViewport)
            {
                // These two write a scope of their own.
                hasOwnScope = true;
                --counters_.IndentLevel;
            }
        }
        const ResultCode result = ConvertEvent(child, text);
        if (child != nullptr)
        {
            writer.Converted(*child, text, result);
        }
        if (result != ResultNormal)
        {
            break;
        }
        const auto* added = kv::EventAs<CZtObjectAdded>(child);
        linetypeShapeStyle = linetypeShapeStyle || (added != nullptr && IsLinetypeShapeStyle(*added));
        if (!text.isEmpty())
        {
            allEmpty = false;
            eventTexts.emplace_back(child, std::move(text));
        }
    }

    if (!hasOwnScope && !anonymousAction && !allEmpty && !linetypeShapeStyle)
    {
        writer.Write(nullptr, blockHead);
    }
    for (const auto& [child, text] : eventTexts)
    {
        writer.Write(child, text);
    }
    // With an anonymous action the indent level stays one higher for the rest of the macro: existing macros have it.
    if (!hasOwnScope && !anonymousAction)
    {
        QString blockEnd = WriteBlockEnd();
        blockEnd += WriteCommentBlockSeparator();
        if (!allEmpty && !linetypeShapeStyle)
        {
            writer.Write(nullptr, blockEnd);
        }
    }
    writer.Converted(command, allEmpty ? QString() : blockHead, ResultNormal);
    return ResultNormal;
}
