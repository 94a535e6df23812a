// Writes the Visual Studio 2008 project of a .NET macro in the MSBuild format.
#pragma once

#include <QtCore/QString>

#include <initializer_list>

namespace kv
{

// The text that comes out is a template: values may hold markers, and lines end in the marker of the line end. The
// parts stand in the order in which they are added.
class MsbuildProject
{
public:
    // An empty value gives an element that stands open over two lines.
    struct Property
    {
        const char* name;
        const char* value;
    };
    using Properties = std::initializer_list<Property>;

    // Opens the project; the line end is the marker that stands for it.
    explicit MsbuildProject(const char* lineEnd);

    // The properties of all configurations, behind the configuration and the platform that are the default.
    void AddProperties(Properties properties);

    // The properties of one configuration, "Debug" or "Release".
    void AddConfiguration(const char* name, Properties properties);

    // A group of items of one kind.
    void AddItems(const char* kind, std::initializer_list<const char*> includes);

    // The reference to the application's type library.
    void AddTypeLibrary();

    // Closes the project with the targets of the language and gives the whole text, without a line end behind it.
    [[nodiscard]] QString Close(const char* targets);

private:
    void Line(int level, const QString& line);
    void Element(int level, const Property& property);
    void Elements(int level, Properties properties);

    QString lineEnd_;
    QString text_;
};

} // namespace kv
