// Two texts that should be equal, told apart for people.
#include "support/text_difference.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QStringList>

namespace
{

// A line without its numbers and quoted texts.
QString Shape(QString line)
{
    static const QRegularExpression quoted(QStringLiteral("\"[^\"]*\""));
    static const QRegularExpression number(QStringLiteral("-?\\d+(\\.\\d+)?(e[+-]\\d+)?"));
    return line.replace(quoted, QStringLiteral("\"\"")).replace(number, QStringLiteral("0"));
}

} // namespace

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

QString Unfolded(const QString& expected, const QString& actual)
{
    static const QRegularExpression fold(QStringLiteral("^ *\\.\\.\\. (\\d+) more$"));
    const QStringList got = actual.split(QLatin1Char('\n'));
    QStringList wanted;
    QSet<QString> shapes;
    for (const QString& line : expected.split(QLatin1Char('\n')))
    {
        const QRegularExpressionMatch match = fold.match(line);
        const QStringList folded = got.mid(wanted.size(), match.captured(1).toInt());
        if (match.hasMatch() &&
            std::ranges::all_of(folded, [&](const QString& one) { return shapes.contains(Shape(one)); }))
        {
            wanted += folded;
            continue;
        }
        wanted.append(line);
        shapes.insert(Shape(line));
    }
    return wanted.join(QLatin1Char('\n'));
}
