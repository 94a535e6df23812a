// Journals for measurements.
#include "measured_journals.h"

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
void WritePoint(std::ostream& out, const char* name, Coordinates& coordinates)
{
    for (const char axis : {'X', 'Y', 'Z'})
    {
        out << R"({"name":")" << name << ' ' << axis << R"(","value":)" << coordinates.Next() << "},";
    }
}

struct Handle
{
    int number;

    friend std::ostream& operator<<(std::ostream& out, Handle handle)
    {
        return out << '"' << std::hex << std::uppercase << handle.number << std::dec << '"';
    }
};

// What a command of the session does to the object of the handle; a circle is drawn by every fourth command.
void WriteEvents(std::ostream& out, int command, Handle handle, Coordinates& coordinates)
{
    const char* const layer = R"({"name":"Layer","value":{"id":"10"}})";
    switch (command % 4)
    {
    case 0:
        out << R"({"prompt":{"kind":"point","text":"Specify center point: ","answer":{"point":[)" << coordinates.Next()
            << ",0,0]}}}\n"
            << R"({"added":{"class":"AcDbCircle","handle":)" << handle << R"(,"properties":[)";
        WritePoint(out, "Center", coordinates);
        WriteProperty(out, "Radius", std::abs(coordinates.Next()));
        out << ',' << layer << "]}}\n";
        break;
    case 1:
        out << R"({"select":{"handles":[)" << handle << R"(],"classes":["AcDbCircle"]}})" << '\n'
            << R"({"action":{"id":3,"data":[{"handles":[)" << handle << R"(]},{"classes":["AcDbCircle"]},{"vector":[)"
            << coordinates.Next() << ",1,0]}]}}\n";
        break;
    case 2:
        out << R"({"sysvar":{"name":"LTSCALE","value":{"double":)" << coordinates.Next() << "}}}\n"
            << R"({"modified":{"class":"AcDbCircle","handle":)" << handle
            << R"(,"properties":[{"name":"LineColor","value":{"color":{"index":1}}},)";
        WriteProperty(out, "Radius", std::abs(coordinates.Next()));
        out << "]}}\n";
        break;
    default:
        out << R"({"prompt":{"kind":"distance","text":"Specify height: ","answer":{"real":2.5}}})" << '\n'
            << R"({"added":{"class":"AcDbText","handle":)" << handle << R"(,"properties":[)";
        WritePoint(out, "Position", coordinates);
        WritePoint(out, "Text alignment", coordinates);
        out << R"({"name":"Height","value":2.5},{"name":"Contents","value":"Room )" << command << R"("},)" << layer
            << "]}}\n";
        break;
    }
}
} // namespace

namespace
{
// Opens the journal, writes its head, and has the rest written.
template <class Rest>
void WriteJournal(const QString& path, Rest rest)
{
    std::ofstream out(path.toStdString());
    out.precision(6);
    out << std::fixed << R"({"journal":{"version":1,"recordingMode":1}})" << '\n';
    Coordinates coordinates;
    rest(out, coordinates);
    if (!out.flush())
    {
        throw std::runtime_error("the journal can't be written: " + path.toStdString());
    }
}
} // namespace

void WriteLineJournal(const QString& path, int lines, int handles)
{
    WriteJournal(path,
                 [&](std::ostream& out, Coordinates& coordinates)
                 {
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
                 });
}

void WriteCommandJournal(const QString& path, int commands, int handles)
{
    WriteJournal(path,
                 [&](std::ostream& out, Coordinates& coordinates)
                 {
                     out << R"({"object":{"class":"AcDbLayerTableRecord","handle":"10","name":"Walls"}})" << '\n';
                     for (int command = 0; command < commands; ++command)
                     {
                         // The four commands of a turn work on one circle; its text has a handle of its own.
                         const int turn = command / 4 % handles;
                         out << R"({"command":"WORK"})" << '\n';
                         WriteEvents(out, command, {firstHandle + 2 * turn + (command % 4 == 3 ? 1 : 0)}, coordinates);
                         out << R"({"end":"WORK"})" << '\n';
                     }
                 });
}
