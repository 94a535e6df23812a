// VBA texts of block references.
#include "backends/vba/object.h"

QString CZtConverterKVAPIObjectVba::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                           const QString& tag, const QString& value)
{
    return Statement("%1Dim attrInstances_%3 As Variant%2"
                     "%1attrInstances_%3 = %4.GetAttributeInstances()%2"
                     "%1Dim attrIndex_%3 As Long%2"
                     "%1For attrIndex_%3 = 0 To UBound(attrInstances_%3)%2"
                     "%1    If attrInstances_%3(attrIndex_%3).Name = \"%6\" Then%2"
                     "%1        attrInstances_%3(attrIndex_%3).%5 = \"%7\"%2"
                     "%1    End If%2"
                     "%1Next%2",
                     NextLocalNumber(), variable, word, tag, value);
}
