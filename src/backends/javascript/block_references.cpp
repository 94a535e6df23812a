// JavaScript texts of block references.
#include "backends/javascript/object.h"

QString CZtConverterKVAPIObjectJavaScript::WriteSetAttributeValue(const QString& variable, const QString& word,
                                                                  const QString& tag, const QString& value)
{
    return Statement("%1var attrInstances_%3 = %4.GetAttributeInstances();%2"
                     "%1if (attrInstances_%3.length > 0)%2"
                     "%1{%2"
                     "%1    for (var attrIndex_%3 = 0; attrIndex_%3 < attrInstances_%3.length; ++attrIndex_%3)%2"
                     "%1    {%2"
                     "%1        if (attrInstances_%3[attrIndex_%3].get_Name() == \"%6\")%2"
                     "%1            attrInstances_%3[attrIndex_%3].put_%5(\"%7\");%2"
                     "%1    }%2"
                     "%1}%2",
                     NextLocalNumber(), variable, word, tag, value);
}
