// Answers line by line from a script.
#include "embedded/answer_source.h"

#include "embedded/terminal_answers.h"

#include <QtCore/QFile>

#include <cstdio>

#include <unistd.h>

namespace kv
{
AnswerSource::~AnswerSource() = default;

namespace
{
void show(const QString& text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

class ScriptAnswers final : public AnswerSource
{
public:
    ScriptAnswers() { static_cast<void>(input_.open(stdin, QIODevice::ReadOnly)); }

    std::optional<QString> Ask(const QString& prompt) override
    {
        show(prompt);
        QByteArray line = input_.readLine();
        if (line.isEmpty() || line.contains(CancelKeys[0]) || line.contains(CancelKeys[1]))
        {
            show(QStringLiteral("*Cancel*\n"));
            return std::nullopt;
        }
        while (line.endsWith('\n') || line.endsWith('\r'))
        {
            line.chop(1);
        }
        const QString answer = QString::fromLocal8Bit(line);
        Tell(answer);
        return answer;
    }

    void Tell(const QString& text) override { show(text + QLatin1Char('\n')); }

private:
    QFile input_;
};
} // namespace

std::unique_ptr<AnswerSource> StandardAnswers()
{
    if (isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0)
    {
        if (auto terminal = TerminalAnswers())
        {
            return terminal;
        }
    }
    return std::make_unique<ScriptAnswers>();
}
} // namespace kv
