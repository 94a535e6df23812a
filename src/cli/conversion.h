// The conversion itself, in a process of its own that another one of this program started.
#pragma once

#include "cli/options.h"

#include <QtCore/QString>

#include <functional>
#include <memory>

class ConversionObserver;

namespace kv
{
class LoadedModule;
class Session;
} // namespace kv

namespace kv::cli
{

// A journal that was read, and the means to convert it.
struct Conversion
{
    const CommonOptions& options;
    const Language& language;
    std::filesystem::path macro; // the macro file to write
};

// Reads the journal of the options into the session; prints its faults and, where asked, its remarks to standard error.
// False when it has faults.
[[nodiscard]] bool ReadJournal(const CommonOptions& options, Session& session);

// The same with the text of a journal file, whose name is given for messages.
[[nodiscard]] bool ReadDrawing(const std::string& file, const QByteArray& text, Session& session);

// Loads the module file, the one beside the program when it is empty. Throws Failure.
[[nodiscard]] std::unique_ptr<LoadedModule> LoadModule(const std::string& file);

// Converts. Gives the exit status; prints to standard error what went wrong: the code that the conversion gave, the
// exception that left it, or files that could not be written in full. The observer is told as well.
[[nodiscard]] int RunConversion(Session& session, const Conversion& conversion, ConversionObserver* observer = nullptr);

// The path as Qt and the host take it, and back as bytes for messages.
[[nodiscard]] QString ToQString(const std::string& path);

} // namespace kv::cli
