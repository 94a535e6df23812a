// Texts in the source code of a macro.
#pragma once

#include "core/macro_language.h"

#include <QtCore/QString>

// Every backslash doubled.
[[nodiscard]] inline QString EscapeBackslashes(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
}

// A text of a custom action: escaped, except for the Basic languages, whose literals take it as it stands.
[[nodiscard]] inline QString EscapeForLanguage(const QString& text)
{
    return IsBasic(CurrentLanguage()) ? text : EscapeBackslashes(text);
}
