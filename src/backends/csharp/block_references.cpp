// C# texts of block references.
#include "backends/csharp/object.h"

QString CZtConverterKVAPIObjectCSharp::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                              const QString& tag, const QString& value)
{
    return Statement("%1object[] attrInstances_%3 = (object[])%4.GetAttributeInstances();%2"
                     "%1if (attrInstances_%3.Length > 0)%2"
                     "%1{%2"
                     "%1    foreach (object attrItem_%3 in attrInstances_%3)%2"
                     "%1    {%2"
                     "%1        AttributeInstance attrInstance_%3 = (AttributeInstance)attrItem_%3;%2"
                     "%1        if (attrInstance_%3.Name == \"%6\")%2"
                     "%1            attrInstance_%3.%5 = \"%7\";%2"
                     "%1    }%2"
                     "%1}%2",
                     NextLocalNumber(), variable, word, tag, value);
}
