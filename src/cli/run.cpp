// The command that runs a command of the module on the drawing of a journal.
#include "cli/run.h"

#include "cli/conversion.h"
#include "cli/failure.h"
#include "cli/move_in_place.h"
#include "cli/staging.h"
#include "embedded/answer_source.h"
#include "embedded/module_loader.h"
#include "embedded/session.h"

#include <QtCore/QFile>

namespace fs = std::filesystem;

namespace kv::cli
{

namespace
{

// The name without the marks of a global name and of a command line's form.
QString BareName(const QString& name)
{
    int begin = 0;
    while (begin < name.size() && (name[begin] == QLatin1Char('_') || name[begin] == QLatin1Char('-')))
    {
        ++begin;
    }
    return name.mid(begin).toUpper();
}

CZtCommandPtr FindCommand(CZtConverterModule& module, const std::string& wanted)
{
    const auto commands = OdSmartPtr<CZtCommandSource>::cast(module.x(CZtCommandSource::desc()));
    QStringList names;
    for (const CZtCommandPtr& command : commands ? commands->Commands() : std::vector<CZtCommandPtr>())
    {
        if (BareName(command->globalName()) == BareName(ToQString(wanted)))
        {
            return command;
        }
        names += command->localName();
    }
    throw Failure(BadInput, "the module has no command \"" + wanted + "\"; it has: " + names.join(", ").toStdString());
}

QByteArray ReadAll(const std::string& path)
{
    QFile file(ToQString(path));
    if (!file.open(QIODevice::ReadOnly))
    {
        throw Failure(BadInput, path + ": the file can't be opened: " + file.errorString().toStdString());
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
    {
        throw Failure(BadInput, path + ": the file can't be read: " + file.errorString().toStdString());
    }
    return bytes;
}

// A folder of the target's file system holds the new file until it is whole and takes the old one's place.
void Save(const fs::path& target, const QByteArray& bytes)
{
    CheckTarget(target, true);
    const fs::path folder = fs::absolute(target).parent_path();
    std::error_code error;
    if (!fs::is_directory(folder, error))
    {
        throw SystemFailure(folder.string(), ENOENT);
    }
    const Staging staging({folder});
    const fs::path staged = staging.Folder() / "drawing";
    const fs::path backups = staging.Folder() / "backups";
    fs::create_directory(backups, error);
    QFile file(ToQString(staged.string()));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
    {
        throw Failure(Failed, target.string() + " can't be written: " + file.errorString().toStdString());
    }
    file.close();
    if (const fs::file_status old = fs::status(target, error); fs::is_regular_file(old))
    {
        fs::permissions(staged, old.permissions(), error);
    }
    // A link keeps leading to the file that it leads to.
    const fs::path place = fs::exists(target, error) ? fs::canonical(target) : target;
    MoveInPlace({{staged, place}}, true, backups);
}

} // namespace

int RunCommand(const RunOptions& options)
{
    const QByteArray source = ReadAll(options.drawing);
    Session session;
    if (!ReadDrawing(options.drawing, source, session))
    {
        return BadInput;
    }
    const auto module = LoadModule(options.module);
    const CZtCommandPtr command = FindCommand(module->Module(), options.command);
    const auto answers = StandardAnswers();
    ResultCode code = ResultError;
    try
    {
        code = session.RunCommand(*command, answers.get());
    }
    catch (const OdError& error)
    {
        throw Failure(Failed, options.command + " ended with error " + std::to_string(error.code()) +
                                  " of the application: " + error.what());
    }
    if (code != ResultNormal)
    {
        throw Failure(Failed, options.command + (code == ResultCancelled ? " was cancelled" : " failed") + " (" +
                                  std::to_string(code) + "); nothing is saved");
    }
    if (!options.save.empty())
    {
        Save(options.save, session.WithChanges(source));
    }
    return Done;
}

} // namespace kv::cli
