// The command line of the program.
#pragma once

#include "cli/language.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>

namespace kv::cli
{

// What every command is told.
struct CommonOptions
{
    std::string journal;
    std::string language;               // a word of the table of languages, or "all" where that is allowed
    std::optional<std::int32_t> mode;   // the recording mode in place of the journal's
    std::string module;                 // the module file; empty for the one beside the program
    std::filesystem::path stagedFolder; // not empty in the process that converts: where it writes
    int stagedBy = 0;                   // the process that started that process
    std::string stagedLanguage;         // the language of that process when all are asked for
    bool withoutRemarks = false;        // another process already told the remarks
};

struct ConvertOptions : CommonOptions
{
    std::filesystem::path output;
    std::string name; // the macro's base name, checked
    bool force = false;
};

struct CheckOptions : CommonOptions
{
    bool summary = false;
};

struct RunOptions
{
    std::string command; // of the module, with or without the marks of its forms
    std::string drawing; // a journal file
    std::string save;    // the file that gets the changed drawing; empty for none
    std::string module;  // the module file; empty for the one beside the program
};

// Reads the command line. Gives the options of the command, or the exit status when nothing is left to do because help,
// the version or a fault of usage was printed. Throws Failure for a name that no macro can have.
[[nodiscard]] std::variant<ConvertOptions, CheckOptions, RunOptions, int> ParseOptions(int argc,
                                                                                       const char* const* argv);

} // namespace kv::cli
