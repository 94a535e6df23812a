// One conversion of a journal text in a folder of its own, with all that it told and wrote.
#pragma once

#include "host/kernel/conversion_observer.h"
#include "host/kernel/result_code.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <cstdint>
#include <optional>
#include <vector>

// Keeps what the conversion tells.
class ConversionLog final : public ConversionObserver
{
public:
    struct Event
    {
        const OdRxObject* event;
        QString text;
        ResultCode result;
    };
    struct Text
    {
        const OdRxObject* event; // null for the frame and for heads and ends of blocks
        QString text;
    };

    void EventConverted(const OdRxObject& event, const QString& text, std::int32_t result) override;
    void TextWritten(const OdRxObject* event, const QString& text) override;

    std::vector<Event> events;
    std::vector<Text> texts;
};

// The macro file is "macro.txt" in the folder.
struct ConversionRun
{
    // Converts the journal. A first line with the version is put ahead of one that has none. Throws
    // std::runtime_error with the faults of a journal that can't be read.
    ConversionRun(QByteArray journal, std::uint32_t language, std::optional<std::int32_t> recordingMode = {});

    // The texts between the frame's two, also when the macro file was removed in the end.
    [[nodiscard]] QString Body() const;

    // All texts in the order in which they were told.
    [[nodiscard]] QString Whole() const;

    // The bytes of a file of the folder; null when there is none.
    [[nodiscard]] QByteArray File(const QString& name) const;

    // The names of the files in the folder, sorted.
    [[nodiscard]] QStringList Files() const;

    QTemporaryDir folder;
    ConversionLog log;
    ResultCode result = 0;
};
