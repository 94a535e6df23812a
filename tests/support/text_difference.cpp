// Two texts that should be equal, told apart for people.
#include "support/text_difference.h"

#include <QtCore/QStringList>

QString FirstDifference(const QString& expected, const QString& actual)
{
    if (expected == actual)
    {
        return {};
    }
    constexpr int context = 3;
    const QStringList wanted = expected.split(QLatin1Char('\n'));
    const QStringList got = actual.split(QLatin1Char('\n'));
    int line = 0;
    while (line < wanted.size() && line < got.size() && wanted.at(line) == got.at(line))
    {
        ++line;
    }
    QString text = QStringLiteral("first difference in line %1 (- expected, + actual)\n").arg(line + 1);
    const auto add = [&](QChar mark, const QStringList& lines, int from, int count)
    {
        for (const QString& piece : lines.mid(from, count))
        {
            text += mark + piece + QLatin1Char('\n');
        }
    };
    const int before = std::max(0, line - context);
    add(QLatin1Char(' '), wanted, before, line - before);
    add(QLatin1Char('-'), wanted, line, context);
    add(QLatin1Char('+'), got, line, context);
    return text;
}
