// Loading a session and converting it.
#include "embedded/session.h"

#include "embedded/console.h"
#include "embedded/drawing_editor.h"
#include "embedded/journal_reader.h"
#include "embedded/journal_writer.h"
#include "embedded/property_collection.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <array>

namespace kv
{
// The recording with what the module sees of it.
struct Session::State final : CZtSystemServices, CZtDocument
{
    State() = default;
    ~State() override
    {
        if (translating_)
        {
            QCoreApplication::removeTranslator(&recording.translations);
        }
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // Makes the words of the user's language known to Qt.
    void installTranslations()
    {
        translating_ = QCoreApplication::instance() != nullptr && !recording.translations.isEmpty() &&
                       QCoreApplication::installTranslator(&recording.translations);
    }

    const CZtSystemSettings& Settings() const override { return recording.settings; }
    CZtString StringForUnitScalingFactor(std::int32_t units) const override
    {
        static constexpr std::array words = {"Inches",      "Feet",       "Miles",        "Millimeters", "Centimeters",
                                             "Meters",      "Kilometers", "Microinches",  "Mils",        "Yards",
                                             "Angstroms",   "Nanometers", "Microns",      "Decimeters",  "Dekameters",
                                             "Hectometers", "Gigameters", "Astronomical", "Light Years", "Parsecs"};
        return units >= 1 && static_cast<std::size_t>(units) <= words.size()
                   ? CZtString(QCoreApplication::translate("CZtUtils", words.at(static_cast<std::size_t>(units) - 1)))
                   : CZtString();
    }
    CZtDatabase* GetZtDatabase() override { return recording.drawing.get(); }

    Recording recording;

private:
    bool translating_ = false;
};

Session::Session()
{
    clear();
}

Session::~Session() = default;

void Session::clear()
{
    state_.reset();
    state_ = std::make_unique<State>();
    state_->recording.drawing->complete();
}

bool Session::Load(const QString& path, JournalDiagnostics& diagnostics)
{
    // The reader takes whole blocks, so that a buffer between would only copy them once more.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    {
        clear();
        diagnostics.AddFault(0, QStringLiteral("the file can't be opened: ") + file.errorString());
        return false;
    }
    return read(file, diagnostics);
}

bool Session::LoadText(QByteArray text, JournalDiagnostics& diagnostics)
{
    QBuffer buffer(&text);
    return buffer.open(QIODevice::ReadOnly) && read(buffer, diagnostics);
}

bool Session::read(QIODevice& device, JournalDiagnostics& diagnostics)
{
    state_.reset();
    state_ = std::make_unique<State>();
    const std::int64_t faultsBefore = diagnostics.faultCount;
    ReadJournal(device, state_->recording, diagnostics);
    if (diagnostics.faultCount != faultsBefore)
    {
        clear();
        return false;
    }
    state_->installTranslations();
    return true;
}

const CZtJournal& Session::Journal() const
{
    return state_->recording.journal;
}

std::int32_t Session::RecordingMode() const
{
    return state_->recording.recordingMode;
}

void Session::SetObserver(ConversionObserver* observer)
{
    observer_ = observer;
}

std::int64_t Session::EventCount() const
{
    return state_->recording.eventCount;
}

std::int64_t Session::LineOf(const OdRxObject& event) const
{
    const auto* recorded = dynamic_cast<const RecordedEvent*>(&event);
    return recorded != nullptr && recorded->session == &state_->recording ? recorded->line : 0;
}

ResultCode Session::Convert(CZtConverterModule& module, const QString& outputPath, std::uint32_t language,
                            std::optional<std::int32_t> recordingMode)
{
    RegisterHost(this);
    state_->recording.settings.setMacroLanguage(static_cast<std::int16_t>(language));
    CollectProperties(state_->recording, module);
    // No value of a property depends on the context.
    constexpr std::uint64_t hostContext = 0;
    return module.ConvertJournal(CZtString(outputPath), language, recordingMode.value_or(RecordingMode()), hostContext,
                                 Journal());
}

namespace
{
// What a command sees of the session.
class CommandContext final : public OdEdCommandContext
{
public:
    CommandContext(Recording& recording, AnswerSource* answers) : recording_(recording), editor_(*recording.drawing)
    {
        if (answers != nullptr)
        {
            console_.emplace(*answers, *recording.drawing, editor_);
        }
    }

    CZtUserIO* GetZtUserIO() override { return console_ ? &*console_ : nullptr; }
    CZtDrawingEditor& DrawingEditor() override { return editor_; }
    bool GetEffectiveFileDia() const override { return recording_.settings.number(QStringLiteral("FILEDIA")) != 0; }

private:
    Recording& recording_;
    class DrawingEditor editor_;
    std::optional<Console> console_;
};
} // namespace

ResultCode Session::RunCommand(CZtCommand& command, AnswerSource* answers)
{
    RegisterHost(this);
    Drawing& drawing = *state_->recording.drawing;
    CommandContext context(state_->recording, answers);
    try
    {
        const ResultCode result = command.execute(context);
        result == ResultNormal ? drawing.keepChanges() : drawing.takeBackChanges();
        return result;
    }
    catch (...)
    {
        drawing.takeBackChanges();
        throw;
    }
}

QByteArray Session::WithChanges(const QByteArray& source) const
{
    return kv::WithChanges(source, *state_->recording.drawing);
}

CZtSystemServices& Session::SystemServices()
{
    return *state_;
}

CZtDocument* Session::ActiveDocument()
{
    return state_.get();
}

ConversionObserver* Session::Observer()
{
    return observer_;
}
} // namespace kv
