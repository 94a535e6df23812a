// Lists as C++ COM writes them.
#include "backends/cppcom/safe_array.h"

namespace
{

const char* VariantType(SafeArrayText::Kind kind)
{
    switch (kind)
    {
    case SafeArrayText::Kind::Integers:
        return "VT_I4";
    case SafeArrayText::Kind::Doubles:
        return "VT_R8";
    case SafeArrayText::Kind::Entities:
        return "VT_DISPATCH";
    }
    return "";
}

} // namespace

QString SafeArrayText::Declare(kv::Indent indent, int size) const
{
    return kv::Fill("%1VARIANT %3%4;%2"
                    "%1%3%4.vt = ( VT_ARRAY | %5 );%2"
                    "%1%3%4.parray = SafeArrayCreateVector( %5, 0, %6 );%2",
                    indent, kv::LineEnd(), name_, number_, VariantType(kind_), size);
}

QString SafeArrayText::Begin(kv::Indent indent) const
{
    switch (kind_)
    {
    case Kind::Integers:
        return kv::Fill("%1long rgIndices%3;%2"
                        "%1rgIndices%3 = 0;%2"
                        "%1long val%3;%2",
                        indent, kv::LineEnd(), number_);
    case Kind::Doubles:
        return kv::Fill("%1long rgIndices%3;%2"
                        "%1rgIndices%3 = 0;%2"
                        "%1double val%3;%2",
                        indent, kv::LineEnd(), number_);
    case Kind::Entities:
        return kv::Fill("%1long rgIndices%3;%2"
                        "%1rgIndices%3 = 0;%2"
                        "%1IDispatch* val%3;%2",
                        indent, kv::LineEnd(), number_);
    }
    return {};
}

QString SafeArrayText::Element(kv::Indent indent, const QString& value) const
{
    if (kind_ == Kind::Entities)
    {
        return kv::Fill("%1val%4 = %5;%2"
                        "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (IDispatch*)(val%4) );%2"
                        "%1rgIndices%4++;%2",
                        indent, kv::LineEnd(), name_, number_, value);
    }
    return kv::Fill("%1val%4 = %5;%2"
                    "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, &val%4 );%2"
                    "%1rgIndices%4++;%2",
                    indent, kv::LineEnd(), name_, number_, value);
}

QString SafeArrayText::Elements(kv::Indent indent, const QStringList& values) const
{
    QString text = Begin(indent);
    for (const QString& value : values)
    {
        text += Element(indent, value);
    }
    return text;
}

QString SafeArrayText::Block(kv::Indent indent, const QStringList& values) const
{
    QString text = kv::Fill("%1{%2", indent, kv::LineEnd());
    text += Elements({indent.level + 1}, values);
    text += kv::Fill("%1}%2", indent, kv::LineEnd());
    return text;
}

QStringList CoordinateTexts(const OdGePoint3d& point, NumberForm form)
{
    return {form(point.x), form(point.y), form(point.z)};
}

QStringList CoordinateTexts(const OdArray<OdGePoint3d>& points, NumberForm form)
{
    QStringList texts;
    for (const OdGePoint3d& point : points)
    {
        texts += CoordinateTexts(point, form);
    }
    return texts;
}

QStringList CoordinateTexts(const OdArray<OdGePoint2d>& points, NumberForm form)
{
    QStringList texts;
    for (const OdGePoint2d& point : points)
    {
        texts << form(point.x) << form(point.y);
    }
    return texts;
}

QStringList IntegerTexts(const OdArray<std::int32_t>& values)
{
    QStringList texts;
    for (const std::int32_t value : values)
    {
        texts.append(QString::number(value));
    }
    return texts;
}
