// VB.NET texts of block references.
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIObjectVbNet::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                             const QString& tag, const QString& value)
{
    return Statement("%1Dim attrInstances_%3 As Object = %4.GetAttributeInstances()%2"
                     "%1If UBound(attrInstances_%3) >= 0 Then%2"
                     "%1    For Each attrInstance_%3 As Morvane.AttributeInstance In attrInstances_%3%2"
                     "%1        If attrInstance_%3.Name = \"%6\" Then%2"
                     "%1            attrInstance_%3.%5 = \"%7\"%2"
                     "%1        End If%2"
                     "%1    Next%2"
                     "%1End If%2",
                     NextLocalNumber(), variable, word, tag, value);
}
