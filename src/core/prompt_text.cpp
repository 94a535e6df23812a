// The prompts of the command line as the macro shows them.
#include "core/prompt_text.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

QString CleanPromptText(const QString& prompt)
{
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    QString text = prompt;
    text.replace(QLatin1String("<br>"), QLatin1String("\n"));
    if (const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts); !lines.isEmpty())
    {
        text = lines.back();
    }
    if (text.contains(QLatin1Char('<')))
    {
        text.remove(tag);
    }
    return text.remove(QLatin1String("&raquo; "));
}
