// The constants that the logic itself holds, in the form of the language.
#pragma once

#include "core/macro_language.h"

#include <QtCore/QString>

// A qualified constant "kvX_e.kvX_Name" as the current language writes it: bare in the C++ languages, under the name of
// the library in the Basic ones, as it stands in C# and JavaScript.
[[nodiscard]] inline QString ConstantForLanguage(const QString& qualified)
{
    const MacroLanguage language = CurrentLanguage();
    if (IsCpp(language))
    {
        return qualified.mid(qualified.indexOf(QLatin1Char('.')) + 1);
    }
    return IsBasic(language) ? QLatin1String("Morvane.") + qualified : qualified;
}
