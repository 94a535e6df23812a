// A journal for measurements: lines that commands add.
#include "line_journal.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <random>
#include <stdexcept>

namespace
{
constexpr int linesOfCommand = 100;
constexpr int firstHandle = 0x100;

// Coordinates of a drawing. The generator's numbers are the same everywhere; those of a distribution aren't.
class Coordinates
{
public:
    double Next() { return std::floor(static_cast<double>(generator_()) * 4.0) / 1e6 - 8192.0; }

private:
    std::mt19937 generator_{7};
};

void WriteProperty(std::ostream& out, const char* name, double value)
{
    out << R"({"name":")" << name << R"(","value":)" << value << '}';
}

void WriteLine(std::ostream& out, int handle, Coordinates& coordinates)
{
    out << R"({"added":{"class":"AcDbLine","handle":")" << std::hex << std::uppercase << handle << std::dec
        << R"(","properties":[)";
    for (const char* name : {"Start X", "Start Y", "Start Z", "End X", "End Y", "End Z"})
    {
        WriteProperty(out, name, coordinates.Next());
        out << ',';
    }
    WriteProperty(out, "Length", std::abs(coordinates.Next()));
    out << "]}}\n";
}
} // namespace

void WriteLineJournal(const QString& path, int lines, int handles)
{
    std::ofstream out(path.toStdString());
    out.precision(6);
    out << std::fixed << R"({"journal":{"version":1,"recordingMode":1}})" << '\n';
    Coordinates coordinates;
    for (int line = 0; line < lines; ++line)
    {
        if (line % linesOfCommand == 0)
        {
            out << R"({"command":"LINE"})" << '\n';
        }
        WriteLine(out, firstHandle + line % handles, coordinates);
        if (line % linesOfCommand == linesOfCommand - 1 || line == lines - 1)
        {
            out << R"({"end":"LINE"})" << '\n';
        }
    }
    if (!out.flush())
    {
        throw std::runtime_error("the journal can't be written: " + path.toStdString());
    }
}
