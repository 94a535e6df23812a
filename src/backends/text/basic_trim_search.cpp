// The blocks that tell a trim's new entities apart, in the Basic languages.
#include "backends/text/basic_trim_search.h"

#include <map>
#include <vector>

namespace kv
{
namespace
{

// A local of the macro and the recorded real with which it must agree.
struct Compared
{
    const char* local;
    int index;
};

struct Method
{
    const char* name;
    const char* locals;
};

struct Property
{
    const char* local;
    const char* name;
};

struct ShapeWords
{
    const char* name;
    std::vector<Method> methods;
    std::vector<Property> properties;
    std::vector<Compared> compared;
};

const ShapeWords& WordsOf(TrimSearch::Shape shape)
{
    using Shape = TrimSearch::Shape;
    static const std::vector<Compared> twoPoints = {{"firstX", 0},  {"firstY", 1},  {"firstZ", 2},
                                                    {"secondX", 3}, {"secondY", 4}, {"secondZ", 5}};
    static const std::vector<Method> center = {{"GetCenter", "centerX, centerY, centerZ"}};
    static const std::map<Shape, ShapeWords> words = {
        {Shape::Line,
         {"Line",
          {{"GetFirstPoint", "firstX, firstY, firstZ"}, {"GetSecondPoint", "secondX, secondY, secondZ"}},
          {},
          twoPoints}},
        {Shape::Ray,
         {"Ray",
          {{"GetBasePoint", "firstX, firstY, firstZ"}, {"GetThroughPoint", "secondX, secondY, secondZ"}},
          {},
          twoPoints}},
        {Shape::CircleArc,
         {"CircleArc",
          center,
          {{"radius", "Radius"}, {"angleStart", "StartAngle"}, {"angleEnd", "EndAngle"}},
          {{"centerX", 0}, {"centerY", 1}, {"centerZ", 2}, {"radius", 3}, {"angleStart", 4}, {"angleEnd", 5}}}},
        {Shape::EllipseArc,
         {"EllipseArc",
          center,
          {{"majorRadius", "MajorRadius"}, {"minorRadius", "MinorRadius"}},
          {{"centerX", 0}, {"centerY", 1}, {"centerZ", 2}, {"majorRadius", 3}, {"minorRadius", 4}}}},
        {Shape::PolyLine3D,
         {"PolyLine3D",
          {{"GetVertexCoordinate", "0, firstX, firstY, firstZ"},
           {"GetVertexCoordinate", "1, secondX, secondY, secondZ"}},
          {},
          twoPoints}},
        {Shape::Spline,
         {"Spline",
          {{"GetControlPointCoordinate", "0, firstX, firstY, firstZ"},
           {"GetControlPointCoordinate", "1, secondX, secondY, secondZ"}},
          {},
          twoPoints}},
        {Shape::PolyLine,
         {"PolyLine",
          {{"GetVertexCoordinate", "0, firstX, firstY"}, {"GetVertexCoordinate", "1, secondX, secondY"}},
          {},
          {{"firstX", 0}, {"firstY", 1}, {"secondX", 3}, {"secondY", 4}}}},
    };
    return words.at(shape);
}

QString DeclareLocals(const std::vector<Compared>& compared, Indent indent)
{
    QStringList locals;
    for (const Compared& value : compared)
    {
        locals += Fill("%1 As Double", value.local);
    }
    return Fill("%1    Dim %3%2", indent, LineEnd(), locals.join(QLatin1String(", ")));
}

QString CompareLocals(QLatin1String absolute, const std::vector<Compared>& compared, Indent indent)
{
    QString text;
    for (const Compared& value : compared)
    {
        const bool isFirst = &value == &compared.front();
        const bool isLast = &value == &compared.back();
        const QString place = value.index == 0 ? QString() : Fill(" + %1", value.index);
        text += Fill("%1    %3%4(%5 - prop(iNewEnt*6%6)) < epsi %7%2", indent, LineEnd(), isFirst ? "If " : "    ",
                     absolute, value.local, place, isLast ? "Then" : "And _");
    }
    return text;
}

QString TrimBlock(const BasicSearchForms& forms, const TrimSearch::Block& block, Indent indent)
{
    const ShapeWords& words = WordsOf(block.shape);
    const QString name = QLatin1String(words.name);
    const QString stem = name.toLower();
    QString text = Fill("%3If retObjType = Morvane.kvObjectType_e.kv%4Type Then%2", LineEnd(),
                        block.isElse ? Fill("%1Else", indent) : QString(), name);
    text += Fill<Indent, QString, QString, QString>(forms.object, indent, LineEnd(), stem, name);
    text += DeclareLocals(words.compared, indent);
    for (const Method& method : words.methods)
    {
        text += Fill<Indent, QString, QString, QString, QString>(
            forms.getter, indent, LineEnd(), stem, QLatin1String(method.name), QLatin1String(method.locals));
    }
    for (const Property& property : words.properties)
    {
        text += Fill("%1    %3 = kv%4.%5%2", indent, LineEnd(), property.local, stem, property.name);
    }
    text += CompareLocals(forms.absolute, words.compared, indent);
    for (const TrimSearch::Assignment& assignment : block.assignments)
    {
        text += Fill<Indent, QString, int, QString, int>(forms.assignment, indent, LineEnd(), assignment.index, stem,
                                                         assignment.number);
    }
    text += Fill("%1        Exit For%2"
                 "%1    End If%2",
                 indent, LineEnd());
    return text;
}

} // namespace

QString BasicTrimBlocks(const BasicSearchForms& forms, const TrimSearch& search, Indent indent)
{
    QString text;
    for (const TrimSearch::Block& block : search.blocks)
    {
        text += TrimBlock(forms, block, indent);
    }
    if (!text.isEmpty())
    {
        text += Fill("%1        End If%2", indent, LineEnd());
    }
    return text;
}

} // namespace kv
