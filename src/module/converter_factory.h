// The converter of a language.
#pragma once

#include "core/converter.h"

#include <memory>

// A converter for the language of the index, or null for an index without a language. See CZtConverterModule for the
// arguments.
[[nodiscard]] std::shared_ptr<CZtConverterKVAPI> CreateConverter(std::uint32_t languageIndex,
                                                                 std::int32_t recordingMode, std::uint64_t hostContext);
