// The elements of C# arrays that are filled one by one.
#include "backends/csharp/converter.h"

using kv::General;

QString CZtConverterKVAPICSharp::EntityElements(EntityElement element, int number, const QStringList& names) const
{
    QString text;
    for (int i = 0; i < names.size(); ++i)
    {
        text += kv::Fill<kv::Indent, int, int, QString>(element, CurrentIndent(), number, i, names.at(i));
    }
    return text;
}

QString CZtConverterKVAPICSharp::RealElements(RealElement element, int number,
                                              std::span<const OdGePoint3d> points) const
{
    QString text;
    int index = 0;
    for (const OdGePoint3d& point : points)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text +=
                kv::Fill<kv::Indent, int, General, int>(element, CurrentIndent(), number, General{coordinate}, index++);
        }
    }
    return text;
}
