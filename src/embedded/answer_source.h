// Where the answers to prompts come from: a terminal, a script, a test.
#pragma once

#include "embedded/export.h"

#include <QtCore/QString>

#include <memory>
#include <optional>

namespace kv
{
class KVEMBEDDED_API AnswerSource
{
public:
    AnswerSource() = default;
    virtual ~AnswerSource();
    AnswerSource(const AnswerSource&) = delete;
    AnswerSource& operator=(const AnswerSource&) = delete;

    // Shows the prompt and gives the line that is answered, without its end; nothing when the user cancels.
    [[nodiscard]] virtual std::optional<QString> Ask(const QString& prompt) = 0;

    // Shows a text on lines of its own.
    virtual void Tell(const QString& text) = 0;
};

// Answers from standard input, with prompts on standard output: with line editing when both are a terminal, else line
// by line, each repeated behind its prompt. The end of the input, Ctrl-D and Escape cancel.
[[nodiscard]] KVEMBEDDED_API std::unique_ptr<AnswerSource> StandardAnswers();
} // namespace kv
