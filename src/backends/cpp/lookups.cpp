// C++ API texts of comments and look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/cpp/object.h"

CZtConverterKVAPIObjectCPP::CZtConverterKVAPIObjectCPP(CZtConverterKVAPIImpl* converter) : TextOperations(converter) {}

QString CZtConverterKVAPIObjectCPP::WriteObjectAddedComment(const QString& className)
{
    return Statement("%1// %3 object added%2", className);
}

QString CZtConverterKVAPIObjectCPP::WriteObjectModifiedComment(const QString& className)
{
    return Statement("%1// %3 object modified%2", className);
}

QString CZtConverterKVAPIObjectCPP::WriteGetObjectByHandle(const QString& variable, const QString& typeName,
                                                           const QString& handle, std::int32_t number)
{
    // Only the smart pointer's suffix goes, so that a region is cast to "kvRegion_c*_c*": the format's.
    QString className = typeName;
    className.remove(QLatin1String("_ptr"));
    QString text = Line("%1%2 type%3;\n", "kvObjectType_e", number);
    text += Line("%1%2 *object%3;\n", "kvObject", number);
    text += Line("%1kvDoc->GetObjectByHandle(L\"%2\", &type%4, &%3%4);\n", handle, "object", number);
    text += Line("%1%2 %3 = ", typeName, variable);
    text += kv::Fill("%2((%3_c*)object%1);\n", number, typeName, className);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteDeclareBlockDefinition(const QString& variable)
{
    return Statement("%1kvBlockDefinition_ptr %3;%2", variable);
}

QString CZtConverterKVAPIObjectCPP::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1kvNote_ptr %4;%2%1%3->GetNoteAnnotation( &%4 );%2", leader, note);
}
