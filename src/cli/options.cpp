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
  printf 'Set\nCENTER\n\n' | kvmacro run -LINESTYLE --drawing examples/bracket.jsonl --save out.jsonl

Exit status: 0 done; 1 the conversion or the command failed, the command was cancelled, or a file can't be written; 2 bad
usage, a bad journal, or a file that is there already.)";

constexpr const char* convertFooter = R"(
Examples:
  kvmacro convert examples/bracket.jsonl --language csharp --output out
  kvmacro convert examples/bracket.jsonl --language all --output out/every --name MyMacro --force)";

constexpr const char* checkFooter = R"(
Examples:
  kvmacro check examples/bracket.jsonl
  kvmacro check examples/bracket.jsonl --language vba --summary)";

constexpr const char* runFooter = R"(
Commands:
  -LINESTYLE  lists, creates, loads and activates line styles
  -HYPERLINK  attaches hyperlinks to entities or to an area, and removes them

Prompts are answered at the terminal or, one answer a line, from standard input. An empty answer takes what stands in
<>, or ends the command. Ctrl-D, Escape and the end of the input cancel; then nothing is saved.

Examples:
  kvmacro run -LINESTYLE --drawing examples/bracket.jsonl --save out.jsonl
  printf 'Load\n*\nexamples/lines.lin\n\n' | kvmacro run LINESTYLE --drawing examples/bracket.jsonl --save out.jsonl
  printf 'Insert\nArea\n0,0\n60,40\nhttp://example.com\n\nThe maker\n' |
    kvmacro run HYPERLINK --drawing examples/bracket.jsonl --save out.jsonl)";

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

void AddModuleOption(CLI::App& command, std::string& module)
{
    command.add_option("--module", module, "The converter module (default: kvconverter.so beside the program)")
        ->envname("KVMACRO_MODULE")
        ->option_text("FILE");
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
    AddModuleOption(command, options.module);
    // What the program tells the processes of its own that convert; an empty group keeps them out of the help.
    command.add_option("--staged", options.stagedFolder)->group("");
    command.add_option("--staged-by", options.stagedBy)->group("");
    command.add_option("--staged-language", options.stagedLanguage)->group("");
    command.add_flag("--without-remarks", options.withoutRemarks)->group("");
}

// The arguments as the parser takes them, without the program: the hyphen of a command's name would make it an option.
std::vector<std::string> Arguments(int argc, const char* const* argv)
{
    std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (!arguments.empty() && arguments.front() == "run")
    {
        constexpr std::size_t longestOption = 2; // with one hyphen
        for (std::string& argument : arguments)
        {
            if (argument.size() > longestOption && argument[0] == '-' && argument[1] != '-')
            {
                argument.erase(0, 1);
            }
        }
    }
    std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the end
    return arguments;
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

std::variant<ConvertOptions, CheckOptions, RunOptions, int> ParseOptions(int argc, const char* const* argv)
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

    RunOptions run;
    CLI::App* runCommand = app.add_subcommand("run", "Runs a command on the drawing of a journal");
    runCommand->footer(runFooter);
    runCommand->add_option("COMMAND", run.command, "-LINESTYLE or -HYPERLINK; the hyphen may be left out")->required();
    runCommand->add_option("--drawing", run.drawing, "The journal file whose drawing the command works on")
        ->option_text("FILE REQUIRED")
        ->required();
    runCommand
        ->add_option("--save", run.save,
                     "The file that gets the journal with the changed drawing; it is replaced, and may be that of"
                     " --drawing (default: nothing is saved)")
        ->option_text("FILE");
    AddModuleOption(*runCommand, run.module);

    try
    {
        app.parse(Arguments(argc, argv));
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? Done : BadInput;
    }

    if (checkCommand->parsed())
    {
        return check;
    }
    if (runCommand->parsed())
    {
        return run;
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
