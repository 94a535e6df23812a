// Measures filling on a mix of statements, beside the chain of QString::arg calls and the writing of the same bytes.
// The three give the same text, which the program checks before it measures.
#include "backends/text/fill.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>

namespace
{

constexpr int vertexCount = 200;

constexpr char lineTemplate[] = "%1kvSketchManager->InsertLine( %3, %4, %5, %6, %7, %8, &%9 );%2";
constexpr char propertyTemplate[] = "%1%3->put_%4( %5 );%2";
constexpr char optionTemplate[] =
    "%1{%2%1    kvSetCommandOptionResult_e result;%2%1    kvDocument_c* kvDoc;%2"
    "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2%1    kvDoc->SetCommandOptionDouble(%3, %4, &result);%2%1}%2";
constexpr char vertexTemplate[] = "%1Coordinates%3.add(%4);Coordinates%3.add(%5);%2";
constexpr char typeTemplate[] = "%1types%4.add(%3);%2";
constexpr char entityTemplate[] = "%1entities%4.add(%3);%2";
constexpr char selectionTemplate[] =
    "%1kvDocument_c* kvDoc%3;%2%1kvSelectionManager_c* SelManager%3;%2%1m_pKvApp->GetActiveDocument(&kvDoc%3);%2"
    "%1kvDoc%3->GetSelectionManager(&SelManager%3);%2%1kvLongArray types%3;%2%1{%2%4%1};%2"
    "%1kvObjectPtrArray entities%3;%2%1{%2%5%1};%2%1kvCommandMessage_c* cmdMesage%3;%2%1bool result%3;%2"
    "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
    "%1cmdMesage%3->PromptForSelection(false, L\"%6\", L\"\",&result%3);%2%1{%2%1long count%3;%2"
    "%1SelManager%3->GetSelectedObjectCount(kvSelectionSetType_Previous ,&count%3);%2%1kvObjectType_e* type%3;%2"
    "%1for (int i = 0; i < count%3; ++i)%2%1    {%2%1        kvObject *SelObj%3;%2"
    "%1        SelManager%3->GetSelectedObject(kvSelectionSetType_Previous, i,type%3,&SelObj%3);%2"
    "%1        entities%3.add(SelObj%3);%2%1    }%2%1}%2";

// The values of the next statement: each run goes through numbers with many digits and with few.
class Values
{
public:
    double Real()
    {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        const double real = static_cast<double>(state_ >> 40) / 1024.0 - 8192.0;
        return state_ & 1024 ? real : real / 3.0;
    }
    int Number() { return ++number_; }

private:
    quint64 state_ = 1;
    int number_ = 0;
};

const QString variable = QStringLiteral("kvline17");
const QString type = QStringLiteral("kvObjectType_e_kvLineType");
const QString property = QStringLiteral("LineWeight");
const QString constant = QStringLiteral("kvCommandOptions_e_kvCommandOptions_FilletRadius");
const QString prompt = QStringLiteral("Select Objects: ");

// The statements by the text machine.
struct Machine
{
    static void Line(QString& out, Values& values)
    {
        const OdGePoint3d from{values.Real(), values.Real(), values.Real()};
        const OdGePoint3d to{values.Real(), values.Real(), values.Real()};
        kv::FillInto(out, lineTemplate, kv::Indent{1}, kv::LineEnd(), kv::FixedPoint{from}, kv::FixedPoint{to},
                     variable);
    }
    static void Property(QString& out, Values& values)
    {
        kv::FillInto(out, propertyTemplate, kv::Indent{1}, kv::LineEnd(), variable, property, kv::Fixed{values.Real()});
    }
    static void Option(QString& out, Values& values)
    {
        kv::FillInto(out, optionTemplate, kv::Indent{1}, kv::LineEnd(), constant, kv::General{values.Real()});
    }
    static void Vertices(QString& out, Values& values)
    {
        const int number = values.Number();
        for (int i = 0; i < vertexCount; ++i)
        {
            const double x = values.Real();
            const double y = values.Real();
            kv::FillInto(out, vertexTemplate, kv::Indent{1}, kv::LineEnd(), number, kv::Fixed{x}, kv::Fixed{y});
        }
    }
    static void Selection(QString& out, Values& values)
    {
        const int number = values.Number();
        QString types;
        QString entities;
        for (int i = 0; i < 3; ++i)
        {
            kv::FillInto(types, typeTemplate, kv::Indent{2}, kv::LineEnd(), type, number);
            kv::FillInto(entities, entityTemplate, kv::Indent{2}, kv::LineEnd(), variable, number);
        }
        kv::FillInto(out, selectionTemplate, kv::Indent{1}, kv::LineEnd(), number, types, entities, prompt);
    }
};

// The same statements by QString::arg.
struct Chain
{
    static QString Start(const char* text, int level)
    {
        const QLatin1Char blank(' ');
        return QString::fromLatin1(text).arg(blank, 4 * level, blank).arg(kv::LineEnd());
    }
    static QString Fixed(const QString& text, double value) { return text.arg(value, 0, 'f', 14); }

    static void Line(QString& out, Values& values)
    {
        QString text = Start(lineTemplate, 1);
        for (int i = 0; i < 6; ++i)
            text = Fixed(text, values.Real());
        out += text.arg(variable);
    }
    static void Property(QString& out, Values& values)
    {
        out += Fixed(Start(propertyTemplate, 1).arg(variable).arg(property), values.Real());
    }
    static void Option(QString& out, Values& values)
    {
        out += Start(optionTemplate, 1).arg(constant).arg(values.Real(), 0, 'g', -1);
    }
    static void Vertices(QString& out, Values& values)
    {
        const int number = values.Number();
        for (int i = 0; i < vertexCount; ++i)
        {
            const double x = values.Real();
            const double y = values.Real();
            out += Fixed(Fixed(Start(vertexTemplate, 1).arg(number), x), y);
        }
    }
    static void Selection(QString& out, Values& values)
    {
        const int number = values.Number();
        QString types;
        QString entities;
        for (int i = 0; i < 3; ++i)
        {
            types += Start(typeTemplate, 2).arg(type).arg(number);
            entities += Start(entityTemplate, 2).arg(variable).arg(number);
        }
        out += Start(selectionTemplate, 1).arg(number).arg(types).arg(entities).arg(prompt);
    }
};

enum Statement
{
    line,
    property_,
    option,
    vertices,
    selection,
    mix
};

template <class Maker>
void Make(QString& out, Statement statement, Values& values)
{
    switch (statement)
    {
    case line:
        return Maker::Line(out, values);
    case property_:
        return Maker::Property(out, values);
    case option:
        return Maker::Option(out, values);
    case vertices:
        return Maker::Vertices(out, values);
    case selection:
        return Maker::Selection(out, values);
    case mix: // a journal of a hundred statements, about 1 KB each
        for (int i = 0; i < 100; ++i)
            Make<Maker>(out,
                        i % 20 == 0   ? vertices
                        : i % 10 == 5 ? selection
                        : i % 10 == 6 ? option
                                      : Statement(i % 2),
                        values);
    }
}

// One statement after the other into a text that is emptied when it is full, as the conversion does.
template <class Maker>
void FillStatements(benchmark::State& state)
{
    const auto statement = static_cast<Statement>(state.range(0));
    Values values;
    QString out;
    out.reserve(1 << 18);
    for (auto _ : state)
    {
        if (out.size() > 1 << 16)
            out.resize(0);
        Make<Maker>(out, statement, values);
        benchmark::DoNotOptimize(out.constData());
    }
}

// The UTF-8 bytes of one statement to a file that keeps nothing.
void Write(benchmark::State& state)
{
    Values values;
    QString text;
    Make<Machine>(text, static_cast<Statement>(state.range(0)), values);
    const QByteArray bytes = text.toUtf8();
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen("/dev/null", "wb"), std::fclose);
    for ([[maybe_unused]] auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file.get()));
    state.counters["bytes"] = bytes.size();
}

void AllStatements(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("statement")->DenseRange(line, mix);
}

void CheckEqualTexts()
{
    for (int statement = line; statement <= mix; ++statement)
    {
        Values first;
        Values second;
        QString machine;
        QString chain;
        Make<Machine>(machine, Statement(statement), first);
        Make<Chain>(chain, Statement(statement), second);
        if (machine != chain)
        {
            std::fprintf(stderr, "statement %d differs from the chain\n", statement);
            std::exit(EXIT_FAILURE);
        }
    }
}

// Prints the times as always and, in the end, how they compare.
class RatioReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& reports) override
    {
        ConsoleReporter::ReportRuns(reports);
        for (const Run& run : reports)
        {
            // Of repeated runs the median counts, of single ones the run itself.
            if (run.run_type != Run::RT_Aggregate || run.aggregate_name == "median")
                times_[run.run_name.function_name][run.run_name.args] = run.GetAdjustedCPUTime();
        }
    }

    void PrintRatios() const
    {
        static constexpr std::array names = {"line", "property", "option", "vertices", "selection", "mix"};
        std::printf("%-10s  %16s  %16s\n", "filling", "chain / machine", "machine / write");
        for (std::size_t statement = 0; statement < names.size(); ++statement)
        {
            const std::string argument = "statement:" + std::to_string(statement);
            const auto time = [&](const char* function)
            {
                const auto found = times_.find(function);
                const bool measured = found != times_.end() && found->second.contains(argument);
                return measured ? found->second.at(argument) : 0.0;
            };
            const double machine = time("FillStatements<Machine>");
            std::printf("%-10s  %16.2f  %16.2f\n", names.at(statement), time("FillStatements<Chain>") / machine,
                        machine / time("Write"));
        }
    }

private:
    std::map<std::string, std::map<std::string, double>> times_; // by function and argument
};

} // namespace

BENCHMARK(FillStatements<Machine>)->Apply(AllStatements);
BENCHMARK(FillStatements<Chain>)->Apply(AllStatements);
BENCHMARK(Write)->Apply(AllStatements);

int main(int argc, char** argv)
{
    CheckEqualTexts();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios();
    return EXIT_SUCCESS;
}
