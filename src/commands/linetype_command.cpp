// The rounds of -LINESTYLE.
#include "commands/linetype_command.h"

#include "commands/linetype_file.h"
#include "commands/prompts.h"
#include "host/db/symbols.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

using namespace kv;

namespace
{

constexpr const char* styleOptions = "Command Option: Upper- and Lowercase letters are relevant.";
constexpr const char* yesNoOptions = "[GROUPYESNO] Command Option: Upper- and Lowercase letters are relevant.";
const QString notFoundInFile = QStringLiteral("LineStyle \"%1\" not found in definition file.");

QString Blanks(int count)
{
    return QString(std::max(count, 1), QLatin1Char(' '));
}

// One run of the command. Each step gives ResultNormal when the next round may begin.
class LinetypeRun
{
public:
    LinetypeRun(CZtUserIO& user, CZtDrawingEditor& drawing, bool fileDialog)
        : user_(user), drawing_(drawing), fileDialog_(fileDialog)
    {
    }

    ResultCode Rounds()
    {
        for (;;)
        {
            user_.Print(QStringLiteral("Active LineStyle: %1").arg(ActiveName()));
            CZtPrompt prompt;
            prompt.keywords = Keywords(styleOptions, {{"? to list,?", "_?,?"},
                                                      {"Activate", "_Activate"},
                                                      {"Create", "_Create"},
                                                      {"Load", "_Load"},
                                                      {"Set", "_Set"}});
            CZtString keyword;
            const ResultCode answered = user_.GetKeyword(prompt, keyword);
            if (answered != ResultNormal || keyword.isEmpty())
            {
                return answered == ResultCancelled ? ResultCancelled : ResultNormal;
            }
            if (const ResultCode acted = Act(keyword); acted != ResultNormal)
            {
                return acted == ResultCancelled ? ResultCancelled : ResultNormal;
            }
        }
    }

private:
    ResultCode Act(const CZtString& keyword)
    {
        return IsKeyword(keyword, "_?")                                        ? List()
               : IsKeyword(keyword, "_CREATE")                                 ? Create()
               : IsKeyword(keyword, "_LOAD")                                   ? Load()
               : IsKeyword(keyword, "_SET") || IsKeyword(keyword, "_ACTIVATE") ? Activate()
                                                                               : ResultNormal;
    }

    QString ActiveName()
    {
        const OdDbObjectId current = drawing_.currentLinetypeId();
        if (current == drawing_.getLinetypeContinuousId())
        {
            return QStringLiteral("Continuous");
        }
        if (current == drawing_.getLinetypeByLayerId())
        {
            return QStringLiteral("ByLayer");
        }
        if (current == drawing_.getLinetypeByBlockId())
        {
            return QStringLiteral("ByBlock");
        }
        const auto record = OdSmartPtr<OdDbLinetypeTableRecord>::cast(current.openObject());
        return record ? record->getName() : QString();
    }

    ResultCode Ask(const char* text, CZtString& answer)
    {
        CZtPrompt prompt;
        prompt.text = text;
        return user_.GetString(prompt, answer);
    }

    // The path of a line style file; empty when none is chosen. In create mode the file need not exist.
    ResultCode AskFile(bool create, QString& path)
    {
        CZtString answer;
        const CZtString title = create ? "Create or Append LineStyle file" : "Specify LineStyle File";
        ResultCode answered = ResultNormal;
        if (fileDialog_)
        {
            answered =
                user_.GetFile({title, "lin", "style definition file", "LineStyle (*.lin)", "&*.lin&&", create}, answer);
        }
        else
        {
            CZtPrompt prompt;
            prompt.text = title;
            prompt.keywords = Keywords(styleOptions, {{". for none,.", ". for none,."}});
            answered = user_.GetString(prompt, answer);
        }
        if (answered == ResultKeyword || answer.isEmpty())
        {
            return answered == ResultKeyword ? ResultNormal : answered; // no file is chosen
        }
        if (answered != ResultNormal)
        {
            return answered;
        }
        QFileInfo file(answer);
        if (!file.exists() && file.suffix().isEmpty())
        {
            file.setFile(answer.text() + QStringLiteral(".lin"));
        }
        if (!create && !file.exists())
        {
            user_.Print("Cannot find the specified LineStyle file.\nVerify that the file exists.");
            return ResultNormal;
        }
        path = file.filePath();
        return ResultNormal;
    }

    // Asks for a file and reads it, or all files of a folder, and tells what of them can't be read. The first file is
    // empty when there is nothing to go on with.
    ResultCode AskDefinitions(QString& firstFile, std::vector<CZtLinetypeDefinition>& definitions)
    {
        QString path;
        const ResultCode answered = AskFile(false, path);
        if (answered != ResultNormal || path.isEmpty())
        {
            return answered;
        }
        QStringList files(path);
        if (QFileInfo(path).isDir())
        {
            files.clear();
            for (const QFileInfo& file :
                 QDir(path).entryInfoList({QStringLiteral("*.LIN")}, QDir::Files, QDir::Name | QDir::IgnoreCase))
            {
                files.append(file.filePath());
            }
        }
        for (const QString& file : files)
        {
            ReadFile(file, firstFile, definitions);
        }
        if (firstFile.isEmpty())
        {
            user_.Print("Cannot find the specified LineStyle file.\nVerify that the file exists.");
        }
        return ResultNormal;
    }

    void ReadFile(const QString& path, QString& firstFile, std::vector<CZtLinetypeDefinition>& definitions)
    {
        constexpr std::size_t mostFaults = 20;
        auto file = ReadLinetypeFile(path);
        if (!file)
        {
            return;
        }
        if (firstFile.isEmpty())
        {
            firstFile = path;
        }
        std::move(file->definitions.begin(), file->definitions.end(), std::back_inserter(definitions));
        const std::size_t told = std::min(file->faults.size(), mostFaults);
        for (std::size_t place = 0; place < told; ++place)
        {
            const LinetypeFile::Fault& fault = file->faults[place];
            user_.Print(path + QLatin1Char(':') + QString::number(fault.line) + QLatin1String(": ") + fault.message);
        }
        if (told < file->faults.size())
        {
            user_.Print(path + QStringLiteral(": %1 more faults").arg(file->faults.size() - told));
        }
    }

    ResultCode List()
    {
        QString file;
        std::vector<CZtLinetypeDefinition> definitions;
        const ResultCode answered = AskDefinitions(file, definitions);
        if (answered != ResultNormal || file.isEmpty())
        {
            return answered;
        }
        user_.Print(QStringLiteral("LineStyles defined in file %1").arg(file));
        user_.Print(QStringLiteral(" %1 %2 ").arg(QStringLiteral("Name"), QStringLiteral("Description")));
        user_.Print("---------------- ------------------");
        constexpr int descriptionColumn = 17;
        for (const CZtLinetypeDefinition& definition : definitions)
        {
            constexpr int quotes = 2;
            user_.Print(QStringLiteral("\"%1\"%2%3")
                            .arg(definition.name, Blanks(descriptionColumn - quotes - definition.name.size()),
                                 definition.description));
        }
        return ResultNormal;
    }

    ResultCode Create()
    {
        CZtString name;
        ResultCode answered = Ask("Specify new LineStyle name", name);
        if (answered != ResultNormal || name.isEmpty())
        {
            return answered;
        }
        QString path;
        answered = AskFile(true, path);
        if (answered != ResultNormal || path.isEmpty())
        {
            return answered;
        }
        CZtString description;
        answered = Ask("Specify descriptive text", description);
        if (answered != ResultNormal)
        {
            return answered;
        }
        user_.Print(
            "Format: positive decimal values for dashes, negative decimal values for spaces, and a 0 for dots...");
        CZtString descriptors;
        answered = Ask("Specify pattern descriptors", descriptors);
        if (answered != ResultNormal)
        {
            return answered;
        }
        if (IsGoodPattern(descriptors) && AppendLinetype(path, name, description, descriptors))
        {
            user_.Print("New LineStyle definition saved to file.");
        }
        return ResultNormal;
    }

    bool IsGoodPattern(const QString& descriptors)
    {
        constexpr std::size_t fewest = 2;
        constexpr std::size_t most = 12;
        const auto pattern = ParsePattern(descriptors);
        if (!pattern)
        {
            user_.Print("Invalid number or bad continuation.");
            return false;
        }
        if (pattern->size() < fewest || pattern->size() > most)
        {
            user_.Print("There must be between 2 and 12 dash/dot specs.");
            return false;
        }
        return true;
    }

    ResultCode Load()
    {
        CZtString names;
        ResultCode answered = Ask("Specify LineStyle", names);
        if (answered != ResultNormal || names.isEmpty())
        {
            return answered;
        }
        QString file;
        std::vector<CZtLinetypeDefinition> definitions;
        answered = AskDefinitions(file, definitions);
        if (answered != ResultNormal || file.isEmpty())
        {
            return answered;
        }
        for (const CZtLinetypeDefinition& definition : Chosen(names, definitions))
        {
            answered = LoadOne(definition);
            if (answered != ResultNormal)
            {
                return answered;
            }
        }
        return ResultNormal;
    }

    // The definitions of the names that the user gave, in the order of the names; "*" stands for all.
    std::vector<CZtLinetypeDefinition> Chosen(const QString& names,
                                              const std::vector<CZtLinetypeDefinition>& definitions)
    {
        if (names.trimmed() == QLatin1String("*"))
        {
            return definitions;
        }
        std::vector<CZtLinetypeDefinition> chosen;
        for (const QString& part : names.split(QLatin1Char(',')))
        {
            const QString name = part.trimmed();
            const auto found =
                std::ranges::find_if(definitions, [&](const CZtLinetypeDefinition& definition)
                                     { return definition.name.compare(name, Qt::CaseInsensitive) == 0; });
            if (found != definitions.end())
            {
                chosen.push_back(*found);
            }
            else if (!name.isEmpty())
            {
                user_.Print(notFoundInFile.arg(name));
            }
        }
        return chosen;
    }

    ResultCode LoadOne(const CZtLinetypeDefinition& definition)
    {
        if (drawing_.getLinetypeId(definition.name).isNull())
        {
            drawing_.loadLinetype(definition);
            return ResultNormal;
        }
        CZtPrompt prompt;
        prompt.text = QStringLiteral("LineStyle \"%1\" is already loaded. Reload it?").arg(definition.name);
        prompt.keywords = Keywords(yesNoOptions, {{"Yes", "_Yes"}, {"No", "_No"}});
        CZtString keyword;
        const ResultCode answered = user_.GetKeyword(prompt, keyword);
        if (answered == ResultNormal && IsKeyword(keyword, "_YES"))
        {
            drawing_.loadLinetype(definition);
            user_.Print(QStringLiteral("LineStyle \"%1\" reloaded.").arg(definition.name));
        }
        return answered;
    }

    ResultCode Activate()
    {
        OdDbObjectId chosen;
        const ResultCode answered = user_.GetLinetype({"Specify LineStyle", "Specify LineStyle(s)", notFoundInFile,
                                                       "You can use the \"Load\" option to load it from another file."},
                                                      chosen);
        if (answered == ResultNormal && !chosen.isNull())
        {
            drawing_.setCurrentLinetype(chosen);
        }
        return answered;
    }

    CZtUserIO& user_;
    CZtDrawingEditor& drawing_;
    bool fileDialog_;
};

} // namespace

CZtString CZtCommandLinetype::groupName() const
{
    return CommandGroup;
}

ResultCode CZtCommandLinetype::execute(OdEdCommandContext& context)
{
    CZtUserIO* user = context.GetZtUserIO();
    return user != nullptr ? LinetypeRun(*user, context.DrawingEditor(), context.GetEffectiveFileDia()).Rounds()
                           : ResultError;
}
