// Writes a project file in the layout of Visual Studio 2008.
#include "backends/text/vcproj_writer.h"

namespace kv
{

void VcprojWriter::Open(const char* tag, const Attributes& attributes)
{
    StartTag(tag, attributes);
    if (!attributes.empty())
    {
        Write(open_.size() + 1, QStringLiteral(">"));
    }
    open_.append(QLatin1String(tag));
}

void VcprojWriter::Close()
{
    const QString tag = open_.takeLast();
    Write(open_.size(), QLatin1String("</") + tag + QLatin1Char('>'));
}

void VcprojWriter::Empty(const char* tag, const Attributes& attributes)
{
    StartTag(tag, attributes);
    Write(open_.size(), QStringLiteral("/>"));
}

void VcprojWriter::Raw(const char* text)
{
    Write(0, QLatin1String(text));
}

void VcprojWriter::StartTag(const char* tag, const Attributes& attributes)
{
    const bool whole = attributes.empty();
    Write(open_.size(), QLatin1Char('<') + QLatin1String(tag) + QLatin1String(whole ? ">" : ""));
    for (const Attribute& attribute : attributes)
    {
        Write(open_.size() + 1,
              QLatin1String(attribute.name) + QLatin1String("=\"") + QLatin1String(attribute.value) + QLatin1Char('"'));
    }
}

void VcprojWriter::Write(int level, const QString& line)
{
    text_ += QString::fromLatin1(unit_).repeated(level);
    text_ += line;
    text_ += QLatin1String(lineEnd_);
}

} // namespace kv
