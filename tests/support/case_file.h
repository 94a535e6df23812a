// Case files: a journal and the macro that each language makes of it, to be read by people.
//
//   # What the case is about.
//   [journal]           events, one JSON record a line; the first record, of the version, may be missing
//   [journal file]      or the path of a journal, from the top of the source tree
//   [mode]              the recording mode, when it isn't the journal's
//   [result]            the result code, when it isn't 5100
//   [cpp]               the macro text without its frame: every character up to the next heading counts
//   [cpp whole]         the whole macro file, without its byte order mark
//
// The line "... 24 more" stands for 24 lines that differ from lines above them only in numbers and quoted texts. The
// C++ sections say every line, so that a change of the logic shows there; the others may fold what repeats.
//
// A section whose text has no line end is closed by the line "\ No newline at end of file".
//
// Languages are cpp, csharp, javascript, vbnet, cppcom and vba. The macro's name is "macro".
#pragma once

#include "host/kernel/result_code.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstdint>
#include <map>
#include <optional>

struct CaseFile
{
    // Reads a case file. Throws std::runtime_error when it can't be read or has a heading that isn't known.
    static CaseFile Read(const QString& path);

    struct Expected
    {
        std::optional<QString> body;
        std::optional<QString> whole;
    };

    QByteArray journal;
    std::optional<std::int32_t> recordingMode;
    ResultCode result = ResultNormal;
    std::map<std::uint32_t, Expected> languages; // by language index
};
