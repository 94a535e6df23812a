// Lists as C++ COM writes them.
#include "backends/cppcom/safe_array.h"

QString SafeArrayText::Declare(kv::Indent indent, int size) const
{
    const char* type = kind_ == Kind::Entities ? "VT_DISPATCH" : "VT_I4";
    return kv::Fill("%1VARIANT %3%4;%2"
                    "%1%3%4.vt = ( VT_ARRAY | %5 );%2"
                    "%1%3%4.parray = SafeArrayCreateVector( %5, 0, %6 );%2",
                    indent, kv::LineEnd(), name_, number_, type, size);
}

QString SafeArrayText::Begin(kv::Indent indent) const
{
    if (kind_ == Kind::Entities)
    {
        return kv::Fill("%1long rgIndices%3;%2"
                        "%1rgIndices%3 = 0;%2"
                        "%1IDispatch* val%3;%2",
                        indent, kv::LineEnd(), number_);
    }
    return kv::Fill("%1long rgIndices%3;%2"
                    "%1rgIndices%3 = 0;%2"
                    "%1long val%3;%2",
                    indent, kv::LineEnd(), number_);
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
