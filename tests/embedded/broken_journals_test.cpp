// Thousands of journals broken at random, and journals cut off anywhere: never a crash, always a fault or a macro.
#include "support/any_bytes.h"
#include "support/conversion_run.h"
#include "support/process_state.h"

#include "embedded/session.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <map>
#include <random>

namespace kv::testing
{
namespace
{
QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QByteArray example(const char* name)
{
    return readFile(QStringLiteral(KV_SOURCE_DIR "/examples/") + QLatin1String(name));
}

// Breaks journals. The same seed breaks them alike.
class Breaker
{
public:
    explicit Breaker(std::uint32_t seed) : random_(seed) {}

    QByteArray broken(QByteArray journal)
    {
        using Break = void (Breaker::*)(QByteArray&);
        static constexpr std::array<Break, 9> breaks = {
            &Breaker::cut,         &Breaker::flipBytes,   &Breaker::dropLine,
            &Breaker::repeatLine,  &Breaker::breakValues, &Breaker::breakValues,
            &Breaker::breakValues, &Breaker::breakUtf8,   &Breaker::lengthenLine};
        const Break chosen = breaks.at(below(breaks.size()));
        (this->*chosen)(journal);
        return journal;
    }

private:
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }
    int placeIn(const QByteArray& bytes) { return static_cast<int>(below(static_cast<std::size_t>(bytes.size()))); }

    void cut(QByteArray& journal) { journal.truncate(placeIn(journal)); }

    void flipBytes(QByteArray& journal)
    {
        for (std::size_t count = 1 + below(4); count > 0; --count)
        {
            journal[placeIn(journal)] = static_cast<char>(random_());
        }
    }

    void dropLine(QByteArray& journal)
    {
        QList<QByteArray> lines = journal.split('\n');
        lines.removeAt(static_cast<int>(below(static_cast<std::size_t>(lines.size()))));
        journal = lines.join('\n');
    }

    void repeatLine(QByteArray& journal)
    {
        QList<QByteArray> lines = journal.split('\n');
        const QByteArray line = lines.at(static_cast<int>(below(static_cast<std::size_t>(lines.size()))));
        lines.insert(static_cast<int>(below(static_cast<std::size_t>(lines.size()))), line);
        journal = lines.join('\n');
    }

    void breakUtf8(QByteArray& journal)
    {
        static const std::array<QByteArray, 5> sequences = {"\xff", "\xc3", "\xed\xa0\x80", "\xf4\x90\x80\x80",
                                                            QByteArray("\xc0\x80", 2)};
        journal.insert(placeIn(journal), sequences.at(below(sequences.size())));
    }

    // A line longer than the reader's block, whole or not.
    void lengthenLine(QByteArray& journal)
    {
        const int length = below(20) == 0 ? 3 << 20 : 5000;
        journal.insert(placeIn(journal), QByteArray(length, below(2) == 0 ? ' ' : 'x'));
    }

    // The line stays JSON: keys are dropped, values take another type or size.
    void breakValues(QByteArray& journal)
    {
        QList<QByteArray> lines = journal.split('\n');
        QByteArray& line = lines[static_cast<int>(below(static_cast<std::size_t>(lines.size())))];
        const QJsonDocument record = QJsonDocument::fromJson(line);
        if (record.isObject())
        {
            line = QJsonDocument(brokenValue(record.object()).toObject()).toJson(QJsonDocument::Compact);
            if (below(8) == 0)
            {
                line.replace(QByteArray("\":0"), hugeNumber());
            }
        }
        journal = lines.join('\n');
    }

    // The value with one part of it broken; an object stays one.
    QJsonValue brokenValue(const QJsonValue& value)
    {
        if (value.isObject() && !value.toObject().isEmpty())
        {
            QJsonObject object = value.toObject();
            const QStringList keys = object.keys();
            const QString& key = keys.at(static_cast<int>(below(static_cast<std::size_t>(keys.size()))));
            const std::size_t choice = below(12);
            if (choice == 0)
            {
                object.remove(key);
            }
            else if (choice == 1)
            {
                object.insert(key + QLatin1Char('s'), object.take(key));
            }
            else
            {
                object.insert(key, choice == 2 ? otherValue() : brokenValue(object.value(key)));
            }
            return object;
        }
        if (value.isArray() && !value.toArray().isEmpty() && below(6) != 0)
        {
            QJsonArray array = value.toArray();
            const int place = static_cast<int>(below(static_cast<std::size_t>(array.size())));
            below(4) == 0 ? array.removeAt(place) : array.replace(place, brokenValue(array.at(place)));
            return array;
        }
        return otherValue();
    }

    QJsonValue otherValue()
    {
        static const std::array<QJsonValue, 14> values = {QJsonValue(),
                                                          true,
                                                          0,
                                                          -1,
                                                          1.5,
                                                          48,
                                                          2147483648.0,
                                                          1e308,
                                                          QStringLiteral(""),
                                                          QStringLiteral("2A"),
                                                          QStringLiteral("%1 %99 %"),
                                                          QJsonArray(),
                                                          QJsonArray({0, 0, 0}),
                                                          QJsonObject({{QStringLiteral("int"), -7}})};
        const std::size_t choice = below(values.size() + 1);
        if (choice < values.size())
        {
            return values.at(choice);
        }
        QJsonValue nested = 0;
        for (std::size_t depth = below(400); depth > 0; --depth)
        {
            nested = QJsonObject({{QStringLiteral("element"),
                                   QJsonObject({{QStringLiteral("tag"), 0}, {QStringLiteral("value"), nested}})}});
        }
        return nested;
    }

    QByteArray hugeNumber()
    {
        static const std::array<QByteArray, 4> numbers = {"\":1e999", "\":-99999999999999999999999999", "\":1e-999",
                                                          "\":9223372036854775808"};
        return numbers.at(below(numbers.size()));
    }

    std::mt19937 random_;
};

TEST(BrokenJournals, AreRefusedOrConverted)
{
    const std::array journals = {example("bracket.jsonl"), example("curves.jsonl"), example("drawings/session.jsonl"),
                                 example("drawings/spline.jsonl")};
    constexpr std::uint32_t variants = KV_SANITIZED ? 200 : 10000;
    std::map<AnyBytes::Outcome, int> outcomes;
    AnyBytes bytes;
    for (std::uint32_t seed = 0; seed < variants; ++seed)
    {
        const QByteArray journal = Breaker(seed).broken(journals.at(seed % journals.size()));
        try
        {
            ++outcomes[bytes.Take(journal, seed % 6)];
        }
        catch (const std::exception& fault)
        {
            ADD_FAILURE() << "seed " << seed << ": " << fault.what();
        }
    }
    // The variants reach every way through, or they test little.
    EXPECT_GT(outcomes[AnyBytes::Outcome::Refused], static_cast<int>(variants / 10));
    EXPECT_GT(outcomes[AnyBytes::Outcome::Converted], static_cast<int>(variants / 10));
}

// A recording that a crash cut off holds what its whole lines tell.
TEST(BrokenJournals, CutOffFilesConvertUpToTheLastWholeLine)
{
    const QByteArray journal = example("curves.jsonl");
    const int head = journal.indexOf('\n') + 1;
    constexpr int step = KV_SANITIZED ? 311 : 17;
    int cutLines = 0;
    QByteArray wholeLines;
    QString macro;
    for (int size = head; size < journal.size(); size += step)
    {
        SCOPED_TRACE(size);
        const QByteArray cut = journal.left(size);
        const QByteArray lastLine = cut.mid(cut.lastIndexOf('\n') + 1);
        const bool isCut = !lastLine.trimmed().isEmpty() && journal.at(size) != '\n';
        JournalDiagnostics told;
        Session session;
        ASSERT_TRUE(session.LoadText(cut, told));
        const bool said =
            std::any_of(told.remarks.begin(), told.remarks.end(),
                        [](const auto& remark) { return remark.message.contains(QLatin1String("cut off")); });
        EXPECT_EQ(said, isCut);
        if (!isCut)
        {
            continue;
        }
        ++cutLines;
        ResetProcessState();
        const QString whole = ConversionRun(cut, 0).Whole();
        if (const QByteArray lines = cut.left(cut.size() - lastLine.size()); lines != wholeLines)
        {
            wholeLines = lines;
            ResetProcessState();
            macro = ConversionRun(lines, 0).Whole();
        }
        EXPECT_EQ(whole, macro);
    }
    EXPECT_GT(cutLines, 10);
}

TEST(BrokenJournals, DeepNestingIsToldNotFollowed)
{
    for (const int depth : {500, 2000, 100000})
    {
        QByteArray value;
        for (int level = 0; level < depth; ++level)
        {
            value += "{\"element\":{\"tag\":0,\"value\":";
        }
        value += "0" + QByteArray(2 * depth, '}');
        const QByteArray text = "{\"journal\":{\"version\":1}}\n"
                                "{\"changed\":{\"class\":\"AcDbLine\",\"handle\":\"1\",\"property\":"
                                "{\"name\":\"X\",\"value\":" +
                                value + "}}}\n";
        AnyBytes bytes;
        EXPECT_EQ(bytes.Take(text, 0) == AnyBytes::Outcome::Refused, depth > 500) << depth;
    }
}
} // namespace
} // namespace kv::testing
