// C++ COM texts of comments and look-ups of objects; the logic stands in objects/lookups.cpp.
#include "backends/cppcom/object.h"

CZtConverterKVAPIObjectCPPCOM::CZtConverterKVAPIObjectCPPCOM(CZtConverterKVAPIImpl* converter)
    : TextOperations(converter)
{
}

QString CZtConverterKVAPIObjectCPPCOM::WriteObjectAddedComment(const QString& className)
{
    return Statement("%1// %3 object added%2", className);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteObjectModifiedComment(const QString& className)
{
    return Statement("%1// %3 object modified%2", className);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteGetObjectByHandle(const QString& variable, const QString& typeName,
                                                              const QString& handle, std::int32_t number)
{
    QString text = Line("%1%2 type%3;\n", "kvObjectType_e", number);
    text += Line("%1%2 object%3;\n", "IDispatchPtr", number);
    text += Line("%1%3%4 = kvDoc->GetObjectByHandle(L\"%2\", &type%4);\n", handle, "object", number);
    text += Line("%1I%2Ptr %3 = ", typeName, variable);
    text += kv::Fill("object%1;\n", number);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteDeclareBlockDefinition(const QString& variable)
{
    return Statement("%1IBlockDefinitionPtr %3;%2", variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteGetNoteAnnotation(const QString& leader, const QString& note)
{
    return Statement("%1INotePtr %4 = %3->GetNoteAnnotation();%2", leader, note);
}
