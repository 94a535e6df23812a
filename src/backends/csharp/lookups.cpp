// C# texts of comments and look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/csharp/object.h"

CZtConverterKVAPIObjectCSharp::CZtConverterKVAPIObjectCSharp(CZtConverterKVAPIImpl* converter)
    : TextOperations(converter)
{
}

QString CZtConverterKVAPIObjectCSharp::WriteObjectAddedComment(const QString& className)
{
    return Statement("%1// %3 object added%2", className);
}

QString CZtConverterKVAPIObjectCSharp::WriteObjectModifiedComment(const QString& className)
{
    return Statement("%1// %3 object modified%2", className);
}

QString CZtConverterKVAPIObjectCSharp::WriteGetObjectByHandle(const QString& variable, const QString& typeName,
                                                              const QString& handle, std::int32_t number)
{
    QString text = Line("%1%2 type%3;\n", "kvObjectType_e", number);
    text += Line("%1%2 object%3;\n", "object", number);
    text += Line("%1%3%4 = kvDoc.GetObjectByHandle(\"%2\", out type%4);\n", handle, "object", number);
    text += Line("%1%2 %3 = ", typeName, variable);
    text += kv::Fill("(%2)object%1;\n", number, typeName);
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteDeclareBlockDefinition(const QString& variable)
{
    return Statement("%1BlockDefinition %3;%2", variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1Note %4 = %3.GetNoteAnnotation();%2", leader, note);
}
