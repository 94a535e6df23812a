// One recorded session: its journal, drawing, settings and words. It is the host that the module talks to.
#pragma once

#include "embedded/diagnostics.h"
#include "embedded/export.h"
#include "host/kernel/command.h"
#include "host/kernel/converter_module.h"
#include "host/kernel/services.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>

#include <memory>
#include <optional>

namespace kv
{
class AnswerSource;

class KVEMBEDDED_API Session final : public CZtHost
{
public:
    // An empty session: no events, an empty drawing whose current layout is the model's.
    Session();
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Reads a journal file in place of what the session held. False when the file can't be read (one fault with
    // line 0) or has faults; the session is empty then. The words of the user's language hold in the process until
    // the session reads another file or ends.
    [[nodiscard]] bool Load(const QString& path, JournalDiagnostics& diagnostics);

    // The same with the text of a journal file.
    [[nodiscard]] bool LoadText(QByteArray text, JournalDiagnostics& diagnostics);

    // The recorded events.
    [[nodiscard]] const CZtJournal& Journal() const;

    // The mode of recording that the file tells; 1 when it tells none.
    [[nodiscard]] std::int32_t RecordingMode() const;

    // Who is told during Convert; null for nobody. Stays the caller's.
    void SetObserver(ConversionObserver* observer);

    // The number of events: commands and their children are counted, null elements of the journal are not.
    [[nodiscard]] std::int64_t EventCount() const;

    // The line, from 1, of an event of this session; 0 for any other object.
    [[nodiscard]] std::int64_t LineOf(const OdRxObject& event) const;

    // Registers this host, sets the macro language, collects the properties of the events' objects anew and converts.
    // The recording mode, when given, takes the place of the file's. Gives the module's result code; exceptions of the
    // host's kind (OdError) pass through.
    [[nodiscard]] ResultCode Convert(CZtConverterModule& module, const QString& outputPath, std::uint32_t language,
                                     std::optional<std::int32_t> recordingMode = {});

    // Registers this host and runs a command on the drawing; without answers there is no user to ask. Gives the
    // command's code; exceptions of the host's kind (OdError) pass through. Only a command that gives ResultNormal
    // changes the drawing.
    [[nodiscard]] ResultCode RunCommand(CZtCommand& command, AnswerSource* answers);

    // The text that the session was read from, with what commands changed in the drawing.
    [[nodiscard]] QByteArray WithChanges(const QByteArray& source) const;

    CZtSystemServices& SystemServices() override;
    CZtDocument* ActiveDocument() override;
    ConversionObserver* Observer() override;

private:
    struct State;

    void clear();
    [[nodiscard]] bool read(QIODevice& device, JournalDiagnostics& diagnostics);

    std::unique_ptr<State> state_;
    ConversionObserver* observer_ = nullptr;
};
} // namespace kv
