// VB.NET texts of comments and look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/vbnet/object.h"

CZtConverterKVAPIObjectVbNet::CZtConverterKVAPIObjectVbNet(CZtConverterKVAPIImpl* converter) : DispatchArrays(converter)
{
}

QString CZtConverterKVAPIObjectVbNet::WriteObjectAddedComment(const QString& className)
{
    return Statement("%1' %3 object added%2", className);
}

QString CZtConverterKVAPIObjectVbNet::WriteObjectModifiedComment(const QString& className)
{
    return Statement("%1' %3 object modified%2", className);
}

QString CZtConverterKVAPIObjectVbNet::WriteGetObjectByHandle(const QString& variable, const QString& typeName,
                                                             const QString& handle, std::int32_t number)
{
    QString text = Line("%1Dim type%3 As %2\n", "Morvane.kvObjectType_e", number);
    text += Line("%1Dim object%3 As %2\n", "Object", number);
    text += Line("%1%3%4 = kvDoc.GetObjectByHandle(\"%2\", type%4)\n", handle, "object", number);
    text += Line("%1Dim %3 As Morvane.%2 = ", typeName, variable);
    text += kv::Fill("object%1\n", number);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteDeclareBlockDefinition(const QString& variable)
{
    return Statement("%1Dim %3 As Morvane.BlockDefinition%2", variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1Dim %4 As Morvane.Note = %3.GetNoteAnnotation()%2", leader, note);
}
