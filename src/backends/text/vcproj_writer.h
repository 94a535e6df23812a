// Writes a project file in the layout of Visual Studio 2008: every attribute on a line of its own.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <initializer_list>
#include <vector>

namespace kv
{

// The text that comes out is a template: values may hold markers, and every line ends in the marker of the line end.
class VcprojWriter
{
public:
    struct Attribute
    {
        const char* name;
        const char* value;
    };
    using Attributes = std::vector<Attribute>;

    // The unit is the indent of one level, the line end the marker that stands for it.
    VcprojWriter(const char* unit, const char* lineEnd) : unit_(unit), lineEnd_(lineEnd) {}

    // Opens an element, which stays open until Close.
    void Open(const char* tag, const Attributes& attributes = {});
    void Close();

    // An element without children, closed in its own tag.
    void Empty(const char* tag, const Attributes& attributes);

    // A line as it stands.
    void Raw(const char* text);

    [[nodiscard]] const QString& Text() const { return text_; }

private:
    void StartTag(const char* tag, const Attributes& attributes);
    void Write(int level, const QString& line);

    const char* unit_;
    const char* lineEnd_;
    QString text_;
    QStringList open_;
};

} // namespace kv
