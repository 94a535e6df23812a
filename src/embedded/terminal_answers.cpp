// Line editing by libedit.
#include "embedded/terminal_answers.h"

#include <QtCore/QTextCodec>

#include <histedit.h>

#include <cstdio>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace kv
{
namespace
{
constexpr int EndOfInput = 0; // what a reading function of libedit gives
constexpr int OneCharacter = 1;
constexpr int ReadFailed = -1;

class EditedAnswers final : public AnswerSource
{
public:
    EditedAnswers()
        : history_(history_winit()), editor_(el_init("kvmacro", stdin, stdout, stderr)),
          decoder_(QTextCodec::codecForLocale()->makeDecoder())
    {
        if (!isUsable())
        {
            return;
        }
        constexpr int longestHistory = 100;
        HistEventW event{};
        history_w(history_.get(), &event, H_SETSIZE, longestHistory);
        el_wset(editor_.get(), EL_CLIENTDATA, this);
        el_wset(editor_.get(), EL_EDITOR, L"emacs");
        el_wset(editor_.get(), EL_SIGNAL, 1); // an interrupted program leaves the terminal as it was
        el_wset(editor_.get(), EL_HIST, history_w, history_.get());
        el_wset(editor_.get(), EL_PROMPT, &EditedAnswers::prompt);
        el_wset(editor_.get(), EL_GETCFN, &EditedAnswers::readCharacter);
    }

    bool isUsable() const { return history_ && editor_; }

    std::optional<QString> Ask(const QString& prompt) override
    {
        prompt_ = prompt.toStdWString();
        int length = 0;
        el_wset(editor_.get(), EL_PREP_TERM, 1); // ahead of the prompt: whoever sees it may press any key
        const wchar_t* line = el_wgets(editor_.get(), &length);
        if (line == nullptr || length == 0)
        {
            Tell(QStringLiteral("*Cancel*"));
            return std::nullopt;
        }
        QString answer = QString::fromWCharArray(line, length);
        while (answer.endsWith(QLatin1Char('\n')) || answer.endsWith(QLatin1Char('\r')))
        {
            answer.chop(1);
        }
        if (!answer.isEmpty())
        {
            HistEventW event{};
            history_w(history_.get(), &event, H_ENTER, line);
        }
        return answer;
    }

    void Tell(const QString& text) override
    {
        std::fputs((text + QLatin1Char('\n')).toLocal8Bit().constData(), stdout);
        std::fflush(stdout);
    }

private:
    static EditedAnswers& of(EditLine* editor)
    {
        EditedAnswers* answers = nullptr;
        el_wget(editor, EL_CLIENTDATA, &answers);
        return *answers;
    }

    static wchar_t* prompt(EditLine* editor) { return of(editor).prompt_.data(); }

    // Keys that send more than one character, such as the arrows, send the rest at once behind an Escape.
    static bool escapeStandsAlone()
    {
        constexpr int patience = 50; // milliseconds
        pollfd input{STDIN_FILENO, POLLIN, 0};
        return poll(&input, 1, patience) == 0;
    }

    static int readCharacter(EditLine* editor, wchar_t* character)
    {
        QString decoded;
        while (decoded.isEmpty())
        {
            char byte = 0;
            const ssize_t count = read(STDIN_FILENO, &byte, 1);
            if (count < 0)
            {
                return ReadFailed;
            }
            if (count == 0 || byte == CancelKeys[0] || (byte == CancelKeys[1] && escapeStandsAlone()))
            {
                return EndOfInput;
            }
            decoded = of(editor).decoder_->toUnicode(&byte, 1);
        }
        *character = static_cast<wchar_t>(decoded.toUcs4().front());
        return OneCharacter;
    }

    struct Close
    {
        void operator()(HistoryW* history) const { history_wend(history); }
        void operator()(EditLine* editor) const { el_end(editor); }
    };

    std::unique_ptr<HistoryW, Close> history_;
    std::unique_ptr<EditLine, Close> editor_;
    std::unique_ptr<QTextDecoder> decoder_;
    std::wstring prompt_;
};
} // namespace

std::unique_ptr<AnswerSource> TerminalAnswers()
{
    auto answers = std::make_unique<EditedAnswers>();
    if (!answers->isUsable())
    {
        return nullptr;
    }
    return answers;
}
} // namespace kv
