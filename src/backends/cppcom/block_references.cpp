// C++ COM texts of block references.
#include "backends/cppcom/object.h"

QString CZtConverterKVAPIObjectCPPCOM::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                              const QString& tag, const QString& value)
{
    return Statement("%1_variant_t attrInstances_%3 = %4->GetAttributeInstances();%2"
                     "%1int attrCount_%3 = 0;%2"
                     "%1IAttributeInstancePtr *attrArray_%3 = NULL;%2"
                     "%1TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( "
                     "attrInstances_%3, attrArray_%3, attrCount_%3 );%2"
                     "%1for (int attrIndex_%3 = 0; attrIndex_%3 < attrCount_%3; ++attrIndex_%3)%2"
                     "%1{%2"
                     "%1    BSTR attrName_%3;%2"
                     "%1    attrArray_%3[attrIndex_%3]->get_Name( &attrName_%3 );%2"
                     "%1    if (wcscmp( attrName_%3, L\"%6\" ) == 0)%2"
                     "%1        attrArray_%3[attrIndex_%3]->put_%5( L\"%7\" );%2"
                     "%1}%2",
                     NextLocalNumber(), variable, word, tag, value);
}
