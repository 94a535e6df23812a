// The interface of a converter, as the module sees it.
#pragma once

#include "host/kernel/journal_events.h"
#include "host/kernel/result_code.h"

#include <cstdint>

class CZtConverterKVAPI
{
public:
    CZtConverterKVAPI() = default;
    virtual ~CZtConverterKVAPI() = default;
    CZtConverterKVAPI(const CZtConverterKVAPI&) = delete;
    CZtConverterKVAPI& operator=(const CZtConverterKVAPI&) = delete;

    // Writes the macro of the journal to outputPath, the whole path of its main source file, and the project files
    // beside it. A converter runs once. Gives 5100 or the code of what failed; see CZtConverterModule::ConvertJournal.
    [[nodiscard]] virtual ResultCode Convert(const CZtString& outputPath, const CZtJournal& journal) = 0;

    // The host's own value, handed back whenever the value or the tag of a property is read.
    [[nodiscard]] virtual std::uint64_t GetHostContext() const = 0;
    virtual void SetHostContext(std::uint64_t context) = 0;
};
