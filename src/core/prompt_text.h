// The prompts of the command line as the macro shows them.
#pragma once

#include <QtCore/QString>

// The last line of a recorded prompt, without its markup.
[[nodiscard]] QString CleanPromptText(const QString& prompt);
