// Reads the command line with CLI11.
#include "cli/options.h"

#include "cli/failure.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <vector>

namespace kv::cli
{

namespace
{

constexpr const char* programFooter = R"(
Examples:
  kvmacro convert examples/bracket.jsonl --language cpp --output out
  kvmacro check examples/bracket.jsonl --summary

Exit status: 0 done; 1 the conversion failed or a file can't be written; 2 bad usage, a bad journal, or a file that is
there already.)";

constexpr const char* convertFooter = R"(
Examples:
  kvmacro convert examples/bracket.jsonl --language csharp --output out
  kvmacro convert examples/bracket.jsonl --language all --output out/every --name MyMacro --force)";

constexpr const char* checkFooter = R"(
Examples:
  kvmacro check examples/bracket.jsonl
  kvmacro check examples/bracket.jsonl --language vba --summary)";

std::vector<std::string> LanguageWords(bool withAll)
{
    std::vector<std::string> words;
    words.reserve(std::size(languages) + 1);
    for (const Language& language : languages)
    {
        words.emplace_back(language.word);
    }
    if (withAll)
    {
        words.emplace_back(allLanguages);
    }
    return words;
}

void AddCommonOptions(CLI::App& command, CommonOptions& options, bool withAll)
{
    command.add_option("JOURNAL", options.journal, "The recorded session, a .jsonl file")->required();
    command.add_option("--language", options.language, "The language of the macro")
        ->check(CLI::IsMember(LanguageWords(withAll)))
        ->option_text("WORD:{" + CLI::detail::join(LanguageWords(withAll), "|") + "}" + (withAll ? " REQUIRED" : ""));
    command
        .add_option("--mode", options.mode,
                    "Recording mode in place of the journal's: 1 converts prompts, selections"
                    " and system variables too")
        ->option_text("N");
    command.add_option("--module", options.module, "The converter module (default: kvconverter.so beside the program)")
        ->envname("KVMACRO_MODULE")
        ->option_text("FILE");
    // What the program tells the processes of its own that convert; an empty group keeps them out of the help.
    command.add_option("--staged", options.stagedFolder)->group("");
    command.add_option("--staged-by", options.stagedBy)->group("");
    command.add_option("--staged-language", options.stagedLanguage)->group("");
    command.add_flag("--without-remarks", options.withoutRemarks)->group("");
}

// The file name up to its first dot.
std::string BaseName(const std::filesystem::path& file)
{
    const std::string name = file.filename().string();
    return name.substr(0, name.find('.'));
}

// The name becomes a file name, and in the macro the name of a class and of a command.
void CheckName(const std::string& name, bool given)
{
    const auto refuse = [&](const std::string& why) { throw Failure(BadInput, "--name \"" + name + "\": " + why); };
    if (name.empty())
    {
        throw Failure(BadInput, given ? "--name is empty"
                                      : "the journal's file name gives the macro no name: give one with --name");
    }
    if (name.find_first_of("/\\") != std::string::npos)
    {
        refuse("a name has no path separators; the folder is given with --output");
    }
    if (name.find('.') != std::string::npos)
    {
        refuse("a name has no dots; the language gives the extension");
    }
    if (std::any_of(name.begin(), name.end(), [](unsigned char sign) { return sign < 0x20 || sign == 0x7f; }))
    {
        refuse("a name has no control characters");
    }
}

} // namespace

std::variant<ConvertOptions, CheckOptions, int> ParseOptions(int argc, const char* const* argv)
{
    ConvertOptions convert;
    CheckOptions check;
    check.language = "cpp";

    CLI::App app("Turns recorded CAD sessions into macro source code.", "kvmacro");
    app.set_version_flag("--version", std::string("kvmacro ") + KV_VERSION);
    app.footer(programFooter);
    app.require_subcommand(1);

    CLI::App* convertCommand = app.add_subcommand("convert", "Writes the macro of a journal, with its project files");
    convertCommand->footer(convertFooter);
    AddCommonOptions(*convertCommand, convert, true);
    convertCommand->get_option("--language")->required();
    convertCommand->add_option("--output", convert.output, "The folder of the macro; it is made when it is missing")
        ->option_text("DIR REQUIRED")
        ->required();
    CLI::Option* name = convertCommand->add_option("--name", convert.name,
                                                   "The macro's name (default: the journal's"
                                                   " file name up to its first dot)");
    name->option_text("NAME");
    convertCommand->add_flag("--force", convert.force, "Replace files that are there already");

    CLI::App* checkCommand = app.add_subcommand("check", "Tells for each event of a journal whether it gives text");
    checkCommand->footer(checkFooter);
    AddCommonOptions(*checkCommand, check, false);
    checkCommand->add_flag("--summary", check.summary, "Print the counts only");

    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? Done : BadInput;
    }

    if (checkCommand->parsed())
    {
        return check;
    }
    const bool nameGiven = name->count() > 0;
    if (!nameGiven)
    {
        convert.name = BaseName(convert.journal);
    }
    CheckName(convert.name, nameGiven);
    if (convert.output.empty())
    {
        throw Failure(BadInput, "--output is empty: give a folder");
    }
    return convert;
}

} // namespace kv::cli
