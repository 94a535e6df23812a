// The one entry into a converter: from a journal to the macro file and the project files around it.
#include "core/converter_impl.h"
#include "core/macro_language.h"
#include "core/macro_name.h"
#include "core/macro_writer.h"
#include "core/recording_start.h"
#include "objects/object_converter.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace
{
bool HasSysVarChanged(const CZtJournal& journal)
{
    return std::ranges::any_of(journal, [](const OdRxObjectPtr& event)
                               { return event && event->queryX(CZtSysVarChanged::desc()) != nullptr; });
}
} // namespace

RecordingStart& RecordingStart::Current()
{
    static RecordingStart start;
    return start;
}

CZtConverterKVAPIImpl::CZtConverterKVAPIImpl(std::int32_t recordingMode) : recordingMode_(recordingMode) {}

CZtConverterKVAPIImpl::~CZtConverterKVAPIImpl() = default;

void CZtConverterKVAPIImpl::SetObjectConverter(std::unique_ptr<CZtConverterKVAPIObject> objects)
{
    objectConverter_ = std::move(objects);
}

CZtConverterKVAPIObject& CZtConverterKVAPIImpl::ObjectConverter() const
{
    if (!objectConverter_)
    {
        throw OdError(eNullObjectPointer);
    }
    return *objectConverter_;
}

ObjectPair CZtConverterKVAPIImpl::RegisterObject(OdDbHandle handle, const OdRxClass* objectClass)
{
    const ObjectPair object{objectClass, ++counters_.ObjectSequence};
    knownObjects_.Set(handle, object);
    return object;
}

ResultCode CZtConverterKVAPIImpl::Convert(const CZtString& outputPath, const CZtJournal& journal)
{
    const QDir folder(QFileInfo(outputPath.text()).path());
    if (!folder.exists() && !folder.mkpath(QStringLiteral(".")))
    {
        return ResultError;
    }
    TextFile file(outputPath);
    if (!file.Open(IsCpp(CurrentLanguage())))
    {
        return ResultError;
    }
    MacroWriter writer(file, CurrentObserver());
    counters_.IndentLevel = 0;
    writer.Write(nullptr, WriteMacroHeader(MakeMacroName(outputPath), HasSysVarChanged(journal)));
    RecordingStart::Current() = {};
    ResultCode result = Walk(writer, journal);
    writer.Write(nullptr, WriteMacroFooter());
    if (!file.Close() && result == ResultNormal)
    {
        result = ResultError;
    }
    if (result != ResultNormal)
    {
        file.Remove();
        return result;
    }
    return WriteProjectFiles(outputPath);
}

ResultCode CZtConverterKVAPIImpl::Walk(MacroWriter& writer, const CZtJournal& journal)
{
    ResultCode result = ResultNormal;
    const std::size_t count = journal.size();
    for (std::size_t i = 0; i < count && result == ResultNormal; ++i)
    {
        const OdRxObjectPtr& event = journal[i];
        if (!event)
        {
            continue;
        }
        if (event->queryX(CZtUserCommand::desc()) != nullptr)
        {
            result = ConvertUserCommand(writer, *OdSmartPtr<CZtUserCommand>::cast(event));
            continue;
        }
        if (event->queryX(CZtObjectAdded::desc()) != nullptr)
        {
            const auto added = OdSmartPtr<CZtObjectAdded>::cast(event);
            writer.Write(event.get(),
                         DeclareVariable(RegisterObject(added->GetObjectHandle(), added->GetObjectClass())));
        }
        QString text;
        result = ConvertEvent(event.get(), text);
        writer.Converted(*event, text, result);
        if (result == ResultNormal)
        {
            writer.Write(event.get(), text);
        }
    }
    return result;
}
