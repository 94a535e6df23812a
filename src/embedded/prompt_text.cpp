// Keywords in brackets, hints and defaults in angle brackets.
#include "embedded/prompt_text.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace kv
{
namespace
{
// A keyword of one language: what is shown and what is typed.
struct Form
{
    explicit Form(const QString& keyword) : shown(keyword.section(QLatin1Char(','), 0, 0))
    {
        const QString typedInstead = keyword.section(QLatin1Char(','), 1);
        typed = typedInstead.isEmpty() ? shown : typedInstead;
        std::copy_if(typed.begin(), typed.end(), std::back_inserter(shortcut),
                     [](QChar character) { return character.isUpper() || character.isDigit(); });
    }

    [[nodiscard]] bool isNamedBy(const QString& answer) const
    {
        const auto is = [&](const QString& word) { return word.compare(answer, Qt::CaseInsensitive) == 0; };
        return is(shown) || is(typed) || (!shortcut.isEmpty() && is(shortcut)) ||
               (!shortcut.isEmpty() && answer.size() >= shortcut.size() &&
                typed.startsWith(answer, Qt::CaseInsensitive));
    }

    QString shown;
    QString typed;
    QString shortcut; // the upper-case letters and digits; empty when there are none
};
} // namespace

QString PromptText(const CZtPrompt& prompt, bool keywordsOnly)
{
    QStringList parts;
    if (!prompt.text.isEmpty())
    {
        parts += prompt.text.text();
    }
    QString byDefault = prompt.hint.text();
    QStringList shown;
    for (const CZtKeyword& keyword : prompt.keywords)
    {
        shown += Form(keyword.local).shown;
        if (keyword.global == prompt.defaultKeyword)
        {
            byDefault = shown.last();
        }
    }
    if (!shown.isEmpty())
    {
        parts += (keywordsOnly ? QString() : QStringLiteral("or ")) + QLatin1Char('[') + shown.join(QLatin1Char('/')) +
                 QLatin1Char(']');
    }
    if (!byDefault.isEmpty())
    {
        parts += QLatin1Char('<') + byDefault + QLatin1Char('>');
    }
    return parts.join(QLatin1Char(' ')) + QStringLiteral(": ");
}

const CZtKeyword* FindKeyword(const CZtKeywordArray& keywords, const QString& answer)
{
    const QLatin1Char globalMark('_');
    const bool isGlobal = answer.startsWith(globalMark);
    for (const CZtKeyword& keyword : keywords)
    {
        const QString& global = keyword.global;
        const QString word = !isGlobal                       ? keyword.local.text()
                             : global.startsWith(globalMark) ? QString(global).remove(globalMark)
                                                             : global;
        if (!answer.isEmpty() && Form(word).isNamedBy(isGlobal ? answer.mid(1) : answer))
        {
            return &keyword;
        }
    }
    return nullptr;
}

QString GlobalName(const CZtKeyword& keyword)
{
    return Form(keyword.global).shown;
}
} // namespace kv
