// One run of a command on the drawing of a short journal, answered from a list.
#pragma once

#include "embedded/answer_source.h"
#include "embedded/journal_text.h"

#include <string>
#include <vector>

namespace kv::testing
{
// Gives the answers in turn and cancels when they are used up; keeps all that is shown.
class ListedAnswers final : public AnswerSource
{
public:
    explicit ListedAnswers(std::vector<std::string> answers) : answers_(std::move(answers)) {}

    std::optional<QString> Ask(const QString& prompt) override
    {
        if (asked == answers_.size())
        {
            shown += prompt.toStdString() + "\n";
            return std::nullopt;
        }
        shown += prompt.toStdString() + answers_[asked] + "\n";
        return QString::fromStdString(answers_[asked++]);
    }

    void Tell(const QString& text) override { shown += text.toStdString() + "\n"; }

    std::string shown;
    std::size_t asked = 0;

private:
    std::vector<std::string> answers_;
};

struct CommandRun
{
    ResultCode result = 0;
    std::string shown; // prompts with their answers, and messages
    std::string added; // the lines that saving adds behind the journal's
    std::string saved; // the whole saved journal
    std::size_t asked = 0;
};

// Runs the command on the drawing of the lines, which end with a line end.
template <class Command>
CommandRun RunOn(const std::string& lines, std::vector<std::string> answers)
{
    const std::string source = Head + "\n" + lines;
    const auto session = LoadLines(lines);
    ListedAnswers listed(std::move(answers));
    Command command;
    CommandRun run;
    run.result = session->RunCommand(command, &listed);
    run.shown = listed.shown;
    run.asked = listed.asked;
    run.saved = session->WithChanges(QByteArray::fromStdString(source)).toStdString();
    run.added = run.saved.substr(0, source.size()) == source ? run.saved.substr(source.size()) : "a line was changed";
    return run;
}

// A cancel at each prompt that the answers lead to gives the cancel code and changes nothing. All answers together must
// end the command well.
template <class Command>
void CancelEverywhere(const std::string& lines, const std::vector<std::string>& answers)
{
    for (std::size_t count = 0; count < answers.size(); ++count)
    {
        const auto run = RunOn<Command>(lines, {answers.begin(), answers.begin() + static_cast<std::ptrdiff_t>(count)});
        EXPECT_EQ(run.result, -5002) << run.shown;
        EXPECT_EQ(run.added, "") << run.shown;
        EXPECT_EQ(run.asked, count) << run.shown;
    }
    const auto whole = RunOn<Command>(lines, answers);
    EXPECT_EQ(whole.result, 5100) << whole.shown;
    EXPECT_EQ(whole.asked, answers.size()) << whole.shown;
}
} // namespace kv::testing
