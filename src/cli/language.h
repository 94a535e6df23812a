// The target languages as the command line names them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kv::cli
{

struct Language
{
    const char* word;      // on the command line, and the folder's name when all languages are asked for
    std::uint32_t index;   // the module's number
    const char* extension; // of the macro file
};

inline constexpr std::array languages{
    Language{"cpp", 0, ".cpp"},  Language{"csharp", 1, ".cs"},  Language{"javascript", 2, ".html"},
    Language{"vbnet", 3, ".vb"}, Language{"cppcom", 4, ".cpp"}, Language{"vba", 5, ".bas"},
};

// The word that asks for every language.
inline constexpr std::string_view allLanguages = "all";

// The language of a word; null when there is none.
[[nodiscard]] constexpr const Language* FindLanguage(std::string_view word)
{
    for (const Language& language : languages)
    {
        if (word == language.word)
        {
            return &language;
        }
    }
    return nullptr;
}

} // namespace kv::cli
