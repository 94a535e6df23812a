// Small words that the commands share: their group, keywords in the user's language, answers.
#pragma once

#include "host/kernel/user_io.h"

#include <QtCore/QCoreApplication>

#include <initializer_list>

namespace kv
{

// The group in which the host registers the commands.
inline const char* const CommandGroup = "MORVANE_MACRO";

struct KeywordTexts
{
    const char* local;
    const char* global;
};

// Keywords whose local forms are looked up in a context of the host's translations.
[[nodiscard]] inline CZtKeywordArray Keywords(const char* context, std::initializer_list<KeywordTexts> texts)
{
    CZtKeywordArray keywords;
    for (const KeywordTexts& text : texts)
    {
        keywords.push_back(QCoreApplication::translate(context, text.local), text.global);
    }
    return keywords;
}

// True when the answer is the global form of the keyword.
[[nodiscard]] inline bool IsKeyword(const CZtString& answer, const char* global)
{
    return answer.compareNoCase(global) == 0;
}

} // namespace kv
