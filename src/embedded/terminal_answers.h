// Answers that a user types at a terminal.
#pragma once

#include "embedded/answer_source.h"

namespace kv
{
// The keys that cancel: Ctrl-D and Escape.
inline constexpr char CancelKeys[] = {'\x04', '\x1b'};

// Null when the terminal can't be used for line editing.
[[nodiscard]] std::unique_ptr<AnswerSource> TerminalAnswers();
} // namespace kv
