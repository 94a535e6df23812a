// VBA texts of comments and look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/vba/object.h"

CZtConverterKVAPIObjectVba::CZtConverterKVAPIObjectVba(CZtConverterKVAPIImpl* converter) : ObjectArrays(converter) {}

QString CZtConverterKVAPIObjectVba::WriteObjectAddedComment(const QString& className)
{
    return Statement("%1' %3 object added%2", className);
}

QString CZtConverterKVAPIObjectVba::WriteObjectModifiedComment(const QString& className)
{
    return Statement("%1' %3 object modified%2", className);
}

QString CZtConverterKVAPIObjectVba::WriteGetObjectByHandle(const QString& variable, const QString& typeName,
                                                           const QString& handle, std::int32_t number)
{
    QString text = Line("%1Dim type%3 As %2\n", "Morvane.kvObjectType_e", number);
    text += Line("%1Dim object%3 As %2\n", "Object", number);
    text += Line("%1Set %3%4 = kvDoc.GetObjectByHandle(\"%2\", type%4)\n", handle, "object", number);
    text += Line("%1Dim %3 As Morvane.%2\n"
                 "%1Set %3 = object%4\n",
                 typeName, variable, number);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteDeclareBlockDefinition(const QString& variable)
{
    return Statement("%1Dim %3 As Morvane.BlockDefinition%2", variable);
}

QString CZtConverterKVAPIObjectVba::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1Dim %4 As Morvane.Note%2"
                     "%1Set %4 = %3.GetNoteAnnotation()%2",
                     leader, note);
}
