// Reading case files.
#include "support/case_file.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <stdexcept>

namespace
{

[[noreturn]] void Fail(const QString& path, const QString& what)
{
    throw std::runtime_error((path + QStringLiteral(": ") + what).toStdString());
}

QByteArray ReadWhole(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        Fail(path, file.errorString());
    }
    return file.readAll();
}

// The sections by heading; a remark ahead of the first one is left out.
std::map<QString, QByteArray> Sections(const QString& path)
{
    std::map<QString, QByteArray> sections;
    QByteArray* section = nullptr;
    QByteArray text = ReadWhole(path);
    if (text.endsWith('\n'))
    {
        text.chop(1);
    }
    for (const QByteArray& line : text.split('\n'))
    {
        if (line.startsWith('[') && line.endsWith(']'))
        {
            section = &sections[QString::fromUtf8(line.mid(1, line.size() - 2))];
        }
        else if (section != nullptr && line == "\\ No newline at end of file")
        {
            section->chop(1);
        }
        else if (section != nullptr)
        {
            *section += line + '\n';
        }
        else if (!line.isEmpty() && !line.startsWith('#'))
        {
            Fail(path, QStringLiteral("text ahead of the first heading: ") + QString::fromUtf8(line));
        }
    }
    return sections;
}

} // namespace

CaseFile CaseFile::Read(const QString& path)
{
    static const QStringList languages = {QStringLiteral("cpp"),        QStringLiteral("csharp"),
                                          QStringLiteral("javascript"), QStringLiteral("vbnet"),
                                          QStringLiteral("cppcom"),     QStringLiteral("vba")};
    CaseFile file;
    for (const auto& [heading, text] : Sections(path))
    {
        const QString language = heading.section(QLatin1Char(' '), 0, 0);
        if (heading == QLatin1String("journal"))
        {
            file.journal = text;
        }
        else if (heading == QLatin1String("journal file"))
        {
            file.journal = ReadWhole(QStringLiteral(KV_SOURCE_DIR "/") + QString::fromUtf8(text).trimmed());
        }
        else if (heading == QLatin1String("mode"))
        {
            file.recordingMode = text.trimmed().toInt();
        }
        else if (heading == QLatin1String("result"))
        {
            file.result = text.trimmed().toInt();
        }
        else if (languages.contains(heading))
        {
            file.languages[languages.indexOf(language)].body = QString::fromUtf8(text);
        }
        else if (languages.contains(language) && heading == language + QLatin1String(" whole"))
        {
            file.languages[languages.indexOf(language)].whole = QString::fromUtf8(text);
        }
        else
        {
            Fail(path, QStringLiteral("unknown heading: ") + heading);
        }
    }
    if (file.languages.empty())
    {
        Fail(path, QStringLiteral("no language to convert to"));
    }
    return file;
}
