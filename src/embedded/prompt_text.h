// How a prompt looks on the command line, and which keyword an answer is.
#pragma once

#include "host/kernel/user_io.h"

#include <QtCore/QString>

namespace kv
{
// The prompt with its keywords, default or hint, as in "Specify anchor option [Area/Entity] <Entity>: ". A prompt that
// takes other answers than keywords says "or" before these.
[[nodiscard]] QString PromptText(const CZtPrompt& prompt, bool keywordsOnly);

// The keyword that the answer names, null when it names none: by its shown form or the text behind its comma, by its
// shortcut or any longer beginning, or by the same of the global form behind an underscore. Case doesn't count.
[[nodiscard]] const CZtKeyword* FindKeyword(const CZtKeywordArray& keywords, const QString& answer);

// What a command is told when the user names the keyword: its global form up to a comma.
[[nodiscard]] QString GlobalName(const CZtKeyword& keyword);
} // namespace kv
