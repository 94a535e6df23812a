// C++ API texts of block references.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                           const QString& tag, const QString& value)
{
    return Statement(
        "%1kvObjectPtrArray attrInstances_%3;%2"
        "%1%4->GetAttributeInstances( &attrInstances_%3 );%2"
        "%1if (attrInstances_%3.getSize() > 0)%2"
        "%1{%2"
        "%1    for (int attrIndex_%3 = 0; attrIndex_%3 < attrInstances_%3.getSize(); ++attrIndex_%3)%2"
        "%1    {%2"
        "%1        kvAttributeInstance_c* attrInstance_%3 = (kvAttributeInstance_c*)attrInstances_%3[attrIndex_%3];%2"
        "%1        kvString attrName_%3;%2"
        "%1        attrInstance_%3->get_Name( &attrName_%3 );%2"
        "%1        if (attrName_%3 == L\"%6\")%2"
        "%1            attrInstance_%3->put_%5( L\"%7\" );%2"
        "%1    }%2"
        "%1}%2",
        NextLocalNumber(), variable, word, tag, value);
}
