// JavaScript texts of look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/javascript/object.h"

CZtConverterKVAPIObjectJavaScript::CZtConverterKVAPIObjectJavaScript(CZtConverterKVAPIImpl* converter)
    : TextOperations(converter)
{
}

QString CZtConverterKVAPIObjectJavaScript::WriteGetObjectByHandle(const QString& variable, const QString& /*typeName*/,
                                                                  const QString& handle, std::int32_t /*number*/)
{
    return Line("%1var %3 = mDoc.GetObjectByHandle(\"%2\");\n", handle, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1var %4 = %3.GetNoteAnnotation();%2", leader, note);
}
