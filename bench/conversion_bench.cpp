// Measures whole conversions: journal file in, macro file out, of added lines and of a session of commands.
//
//   conversion_bench [LINES]
//
// The baseline reads the same file into the same journal objects and writes the bytes of the macro in pieces, without
// converting. Conversion and baseline take turns, so that what else the machine does meets both alike; each number is
// the median of the runs.
#include "measured_journals.h"

#include "embedded/session.h"
#include "module/module_object.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <malloc.h>
#include <sys/resource.h>

namespace
{
using Module = OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule>;

constexpr std::size_t runs = 7;
constexpr int pieceSize = 64 * 1024;
constexpr std::uint32_t cppApi = 0;

struct Seconds
{
    double wall = 0.0;
    double cpu = 0.0; // of the process and of the system for it

    friend Seconds operator-(const Seconds& left, const Seconds& right)
    {
        return {left.wall - right.wall, left.cpu - right.cpu};
    }

    static Seconds Now()
    {
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        const auto seconds = [](const timeval& time)
        { return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6; };
        const auto wall = std::chrono::steady_clock::now().time_since_epoch();
        return {std::chrono::duration<double>(wall).count(), seconds(usage.ru_utime) + seconds(usage.ru_stime)};
    }
};

using Runs = std::array<Seconds, runs>;

double Median(Runs times, double Seconds::*part)
{
    std::ranges::nth_element(times, times.begin() + runs / 2, {}, part);
    return times.at(runs / 2).*part;
}

void Load(kv::Session& session, const QString& path)
{
    kv::JournalDiagnostics diagnostics;
    if (!session.Load(path, diagnostics))
    {
        throw std::runtime_error("the journal can't be read");
    }
}

void ConvertTo(kv::Session& session, const QString& path)
{
    Module module(nullptr);
    if (session.Convert(module, path, cppApi) != ResultNormal)
    {
        throw std::runtime_error("the conversion failed");
    }
}

// The end of a session is in no measurement.
Seconds TimeConversion(const QString& journal, const QString& macro)
{
    kv::Session session;
    const Seconds begin = Seconds::Now();
    Load(session, journal);
    ConvertTo(session, macro);
    return Seconds::Now() - begin;
}

Seconds TimeBaseline(const QString& journal, const QString& copy, const QByteArray& bytes)
{
    kv::Session session;
    const Seconds begin = Seconds::Now();
    Load(session, journal);
    QFile file(copy);
    bool good = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    for (int from = 0; from < bytes.size() && good; from += pieceSize)
    {
        const int size = std::min(pieceSize, bytes.size() - from);
        good = file.write(bytes.constData() + from, size) == size;
    }
    file.close();
    if (!good)
    {
        throw std::runtime_error("the copy of the macro can't be written");
    }
    return Seconds::Now() - begin;
}

struct Measured
{
    Runs conversion;
    Runs baseline;
    double journalBytes;
    double macroBytes;

    [[nodiscard]] double Ratio(double Seconds::*part) const
    {
        return Median(conversion, part) / Median(baseline, part);
    }
};

// Writes a journal of so many lines or commands, with as many handles as there are.
using JournalWriter = void (*)(const QString&, int, int);

Measured MeasureTime(const QTemporaryDir& folder, JournalWriter write, int lines)
{
    const QString journal = folder.filePath(QStringLiteral("lines.jsonl"));
    const QString macro = folder.filePath(QStringLiteral("macro.cpp"));
    const QString copy = folder.filePath(QStringLiteral("copy.cpp"));
    write(journal, lines, lines);
    TimeConversion(journal, macro);
    QFile file(macro);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    Measured measured{{}, {}, static_cast<double>(QFile(journal).size()), static_cast<double>(bytes.size())};
    for (std::size_t run = 0; run < runs; ++run)
    {
        measured.conversion.at(run) = TimeConversion(journal, macro);
        measured.baseline.at(run) = TimeBaseline(journal, copy, bytes);
    }
    return measured;
}

// Watches how much memory the conversion holds.
class HeapWatch final : public ConversionObserver
{
public:
    static double InUse()
    {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
    }

    void EventConverted(const OdRxObject& /*event*/, const QString& /*text*/, std::int32_t /*result*/) override
    {
        most_ = std::max(most_, InUse());
    }
    void TextWritten(const OdRxObject* /*event*/, const QString& /*text*/) override {}

    // The most that was held beyond what was held when the watch began.
    [[nodiscard]] double Growth() const { return most_ - atBegin_; }

private:
    double atBegin_ = InUse();
    double most_ = atBegin_;
};

// What a conversion holds at most beyond the journal. With handles that come again and again, what is kept for each
// object stays as small as that of the first ones.
double MeasureMemory(const QTemporaryDir& folder, JournalWriter write, int lines, int handles)
{
    const QString journal = folder.filePath(QStringLiteral("memory.jsonl"));
    write(journal, lines, handles);
    kv::Session session;
    Load(session, journal);
    HeapWatch watch;
    session.SetObserver(&watch);
    ConvertTo(session, folder.filePath(QStringLiteral("memory.cpp")));
    return watch.Growth();
}

void Print(const char* unit, int lines, const Measured& measured)
{
    std::printf("%9d %ss  journal %6.1f MB, macro %6.1f MB\n", lines, unit, measured.journalBytes / 1e6,
                measured.macroBytes / 1e6);
    const auto row = [](const char* what, const Runs& times)
    { std::printf("  %-34s %7.3f s  %7.3f s\n", what, Median(times, &Seconds::wall), Median(times, &Seconds::cpu)); };
    std::printf("  %-34s %9s  %9s\n", "", "wall", "cpu");
    row("conversion", measured.conversion);
    row("baseline: read, write the bytes", measured.baseline);
    std::printf("  %-34s %7.2f    %7.2f\n", "ratio", measured.Ratio(&Seconds::wall), measured.Ratio(&Seconds::cpu));
}

void Measure(const char* unit, JournalWriter write, int lines)
{
    const QTemporaryDir folder;
    const int fewer = std::max(lines / 10, 1);
    const Measured small = MeasureTime(folder, write, fewer);
    const Measured large = MeasureTime(folder, write, lines);
    Print(unit, fewer, small);
    Print(unit, lines, large);
    const auto growth = [&](double Seconds::*part)
    { return Median(large.conversion, part) / lines / (Median(small.conversion, part) / fewer); };
    std::printf("time for each %s, %d against %d: wall %.2f, cpu %.2f\n", unit, lines, fewer, growth(&Seconds::wall),
                growth(&Seconds::cpu));

    constexpr int handles = 1000;
    const double memorySmall = MeasureMemory(folder, write, fewer, handles);
    const double memoryLarge = MeasureMemory(folder, write, lines, handles);
    std::printf("memory beyond the journal, %d handles: %.0f KiB for %d %ss, %.0f KiB for %d\n", handles,
                memorySmall / 1024, fewer, unit, memoryLarge / 1024, lines);
    std::printf("memory beyond the journal, %d handles: %.0f bytes for each\n", lines,
                MeasureMemory(folder, write, lines, lines) / lines);
}
} // namespace

int main(int argc, char** argv)
{
    const int lines = argc > 1 ? std::atoi(argv[1]) : 100000;
    if (lines < 1)
    {
        std::fprintf(stderr, "usage: conversion_bench [LINES]\n");
        return EXIT_FAILURE;
    }
    try
    {
        Measure("line", &WriteLineJournal, lines);
        Measure("command", &WriteCommandJournal, lines);
    }
    catch (const std::exception& fault)
    {
        std::fprintf(stderr, "conversion_bench: %s\n", fault.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
