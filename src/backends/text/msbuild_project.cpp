// Writes the Visual Studio 2008 project of a .NET macro in the MSBuild format.
#include "backends/text/msbuild_project.h"

namespace kv
{

MsbuildProject::MsbuildProject(const char* lineEnd) : lineEnd_(QLatin1String(lineEnd))
{
    Line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>"));
    Line(0, QStringLiteral("<Project ToolsVersion=\"3.5\" DefaultTargets=\"Build\" "
                           "xmlns=\"http://schemas.microsoft.com/developer/msbuild/2003\">"));
}

void MsbuildProject::AddProperties(Properties properties)
{
    Line(1, QStringLiteral("<PropertyGroup>"));
    Line(2, QStringLiteral("<Configuration Condition=\" '$(Configuration)' == '' \">Debug</Configuration>"));
    Line(2, QStringLiteral("<Platform Condition=\" '$(Platform)' == '' \">AnyCPU</Platform>"));
    Elements(2, properties);
    Line(1, QStringLiteral("</PropertyGroup>"));
}

void MsbuildProject::AddConfiguration(const char* name, Properties properties)
{
    Line(1, QLatin1String("<PropertyGroup Condition=\" '$(Configuration)|$(Platform)' == '") + QLatin1String(name) +
                QLatin1String("|AnyCPU' \">"));
    Elements(2, properties);
    Line(1, QStringLiteral("</PropertyGroup>"));
}

void MsbuildProject::AddItems(const char* kind, std::initializer_list<const char*> includes)
{
    Line(1, QStringLiteral("<ItemGroup>"));
    for (const char* include : includes)
    {
        Line(2, QLatin1Char('<') + QLatin1String(kind) + QLatin1String(" Include=\"") + QLatin1String(include) +
                    QLatin1String("\" />"));
    }
    Line(1, QStringLiteral("</ItemGroup>"));
}

void MsbuildProject::AddTypeLibrary()
{
    Line(1, QStringLiteral("<ItemGroup>"));
    Line(2, QStringLiteral("<COMReference Include=\"Morvane\">"));
    Elements(3, {{"Guid", "{92993D0B-2709-42F5-BA1B-9C224D757856}"},
                 {"VersionMajor", "1"},
                 {"VersionMinor", "0"},
                 {"Lcid", "0"},
                 {"WrapperTool", "tlbimp"},
                 {"Isolated", "False"}});
    Line(2, QStringLiteral("</COMReference>"));
    Line(1, QStringLiteral("</ItemGroup>"));
}

QString MsbuildProject::Close(const char* targets)
{
    Line(1, QLatin1String("<Import Project=\"") + QLatin1String(targets) + QLatin1String("\" />"));
    Line(1, QStringLiteral("<!-- To modify your build process, add your task inside one of the targets below and "
                           "uncomment it. "));
    Line(3, QStringLiteral(" Other similar extension points exist, see Microsoft.Common.targets."));
    for (const char* target : {"BeforeBuild", "AfterBuild"})
    {
        Line(1, QLatin1String("<Target Name=\"") + QLatin1String(target) + QLatin1String("\">"));
        Line(1, QStringLiteral("</Target>"));
    }
    Line(1, QStringLiteral("-->"));
    return text_ + QLatin1String("</Project>");
}

void MsbuildProject::Line(int level, const QString& line)
{
    text_ += QString(2 * level, QLatin1Char(' '));
    text_ += line;
    text_ += lineEnd_;
}

void MsbuildProject::Element(int level, const Property& property)
{
    const QString start = QLatin1Char('<') + QLatin1String(property.name) + QLatin1Char('>');
    const QString end = QLatin1String("</") + QLatin1String(property.name) + QLatin1Char('>');
    const QString value = QLatin1String(property.value);
    if (value.isEmpty())
    {
        Line(level, start);
        Line(level, end);
        return;
    }
    Line(level, start + value + end);
}

void MsbuildProject::Elements(int level, Properties properties)
{
    for (const Property& property : properties)
    {
        Element(level, property);
    }
}

} // namespace kv
