// Reading definitions line by line, and appending one.
#include "commands/linetype_file.h"

#include <QtCore/QFile>
#include <QtCore/QTextCodec>

#include <cmath>

namespace kv
{

namespace
{

constexpr int LongestDescription = 47;

// The encoding of a file with these bytes. A new one is UTF-8.
const QTextCodec& CodecOf(const QByteArray& bytes)
{
    static const QTextCodec& utf8 = *QTextCodec::codecForName("UTF-8");
    static const QTextCodec& fallback = *QTextCodec::codecForName("windows-1252");
    if (const QTextCodec* marked = QTextCodec::codecForUtfText(bytes, nullptr))
    {
        return *marked;
    }
    QTextCodec::ConverterState state;
    static_cast<void>(utf8.toUnicode(bytes.constData(), bytes.size(), &state));
    return state.invalidChars == 0 && state.remainingChars == 0 ? utf8 : fallback;
}

class Parser
{
public:
    void Take(QStringRef line)
    {
        ++line_;
        if (const int comment = line.indexOf(QLatin1String(";;")); comment >= 0)
        {
            line = line.left(comment);
        }
        while (!line.isEmpty() && line.front().isSpace())
        {
            line = line.mid(1);
        }
        if (line.isEmpty())
        {
            return;
        }
        if (line.front() == QLatin1Char('*'))
        {
            TakeHeader(line.mid(1));
        }
        else
        {
            TakePattern(line);
        }
    }

    LinetypeFile Finish()
    {
        MissPattern();
        return std::move(file_);
    }

private:
    void TakeHeader(const QStringRef& header)
    {
        MissPattern();
        const int comma = header.indexOf(QLatin1Char(','));
        open_.name = header.left(comma).trimmed().toString();
        open_.description = comma < 0 ? QString() : header.mid(comma + 1).left(LongestDescription).toString();
        state_ = open_.name.isEmpty() ? State::Broken : State::Header;
        header_ = line_;
        if (open_.name.isEmpty())
        {
            Fault(line_, QStringLiteral("the definition has no name"));
        }
    }

    // A pattern behind a broken header is no fault of its own.
    void TakePattern(const QStringRef& line)
    {
        const State before = std::exchange(state_, State::None);
        if (before == State::None)
        {
            Fault(line_, QStringLiteral("the line is no header and follows none"));
        }
        if (before != State::Header)
        {
            return;
        }
        auto pattern = line.startsWith(QLatin1String("A,"), Qt::CaseInsensitive) ? ParsePattern(line.mid(2).toString())
                                                                                 : std::nullopt;
        if (!pattern)
        {
            Fault(line_,
                  QStringLiteral("the pattern of %1 isn't \"A\" and numbers, separated by commas").arg(open_.name));
            return;
        }
        open_.pattern = std::move(*pattern);
        file_.definitions.push_back(std::move(open_));
    }

    void MissPattern()
    {
        if (state_ == State::Header)
        {
            Fault(header_, QStringLiteral("the definition of %1 has no pattern").arg(open_.name));
        }
        state_ = State::None;
    }

    void Fault(std::int64_t line, const QString& message) { file_.faults.push_back({line, message}); }

    enum class State
    {
        None,
        Header, // a pattern is due
        Broken  // a pattern is due and of no use
    };

    LinetypeFile file_;
    CZtLinetypeDefinition open_;
    State state_ = State::None;
    std::int64_t line_ = 0;
    std::int64_t header_ = 0;
};

} // namespace

LinetypeFile ParseLinetypes(const QByteArray& bytes)
{
    const QString text = CodecOf(bytes).toUnicode(bytes);
    Parser parser;
    int begin = 0;
    while (begin < text.size())
    {
        const int found = text.indexOf(QLatin1Char('\n'), begin);
        const int end = found < 0 ? text.size() : found;
        const bool carriageReturn = end > begin && text.at(end - 1) == QLatin1Char('\r');
        parser.Take(QStringRef(&text, begin, end - begin - (carriageReturn ? 1 : 0)));
        begin = end + 1;
    }
    return parser.Finish();
}

std::optional<LinetypeFile> ReadLinetypeFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
    {
        return std::nullopt;
    }
    return ParseLinetypes(bytes);
}

std::optional<std::vector<double>> ParsePattern(const QString& descriptors)
{
    std::vector<double> pattern;
    for (const QStringRef& part : descriptors.splitRef(QLatin1Char(',')))
    {
        bool good = false;
        const double number = part.trimmed().toDouble(&good);
        if (!good || !std::isfinite(number))
        {
            return std::nullopt;
        }
        pattern.push_back(number);
    }
    return pattern;
}

bool AppendLinetype(const QString& path, const QString& name, const QString& description, const QString& descriptors)
{
    QFile file(path);
    const bool existed = file.exists();
    if (!file.open(QIODevice::ReadWrite))
    {
        return false;
    }
    const QString text = QStringLiteral("\r\n*") + name + QLatin1Char(',') + description + QStringLiteral("\r\nA,") +
                         descriptors + QStringLiteral("\r\n");
    const QTextCodec& codec = CodecOf(file.readAll());
    QTextCodec::ConverterState withoutMark(QTextCodec::IgnoreHeader);
    const QByteArray bytes = codec.fromUnicode(text.constData(), text.size(), &withoutMark);
    const qint64 size = file.size();
    if (withoutMark.invalidChars == 0 && file.seek(size) && file.write(bytes) == bytes.size() && file.flush())
    {
        return true;
    }
    file.resize(size);
    if (!existed)
    {
        file.remove();
    }
    return false;
}

} // namespace kv
