// What the C++ API and C++ COM say alike in several steps of an object that they reach through a pointer.
#include "backends/text/pointer_setters.h"

#include "backends/text/coordinate_locals.h"

namespace kv
{

QString ChangePosition(Indent indent, const QString& variable, Axis axis, double value, std::int32_t number)
{
    QString text = DeclareCoordinates(indent, number);
    text += Fill("%1%3->GetPosition( &getX%4, &getY%4, &getZ%4);%2", indent, LineEnd(), variable, number);
    text += AssignCoordinate(indent, axis, value, number);
    text += Fill("%1%3->SetPosition( getX%4, getY%4, getZ%4 );%2", indent, LineEnd(), variable, number);
    return text;
}

QString ChangeFirstPoint(Indent indent, const QString& variable, Axis axis, double value, std::int32_t number)
{
    QString text = DeclareCoordinates(indent, number);
    text += Fill("%1%3->GetFirstPoint( &getX%4, &getY%4, &getZ%4);%2", indent, LineEnd(), variable, number);
    text += AssignCoordinate(indent, axis, value, number);
    text += Fill("%1%3->SetFirstPoint( getX%4, getY%4, getZ%4 );%2", indent, LineEnd(), variable, number);
    return text;
}

QString ChangeSecondPoint(Indent indent, const QString& variable, Axis axis, double value, std::int32_t number)
{
    QString text = DeclareCoordinates(indent, number);
    text += Fill("%1%3->GetSecondPoint( &getX%4, &getY%4, &getZ%4);%2", indent, LineEnd(), variable, number);
    text += AssignCoordinate(indent, axis, value, number);
    text += Fill("%1%3->SetSecondPoint( getX%4, getY%4, getZ%4 );%2", indent, LineEnd(), variable, number);
    return text;
}

QString SetTransparencyLocal(int number, OdCmTransparency::Method method, std::int32_t percent)
{
    switch (method)
    {
    case OdCmTransparency::Method::ByLayer:
        return Fill("kvTransparency%1->SetByLayer();", number);
    case OdCmTransparency::Method::ByBlock:
        return Fill("kvTransparency%1->SetByBlock();", number);
    case OdCmTransparency::Method::ByAlpha:
        return Fill("kvTransparency%1->SetByAlpha( %2 );", number, percent);
    }
    return {};
}

QString SetHyperLinkLocal(Indent indent, int number, const HyperLink& link, const QString& variable)
{
    QString text = Fill("%1hyperLink%2->put_Description(L\"%3\");\n", indent, number, link.description);
    switch (link.kind)
    {
    case HyperLink::Kind::PlaceInThisDrawing:
        text += Fill("%1hyperLink%2->SetPlaceInThisDrawing( L\"%3\");", indent, number, link.target);
        break;
    case HyperLink::Kind::FileOrWebPage:
        text += Fill("%1hyperLink%2->SetFileOrWebPage( L\"%3\", L\"%3\");", indent, number, link.target);
        break;
    case HyperLink::Kind::EmailAddress:
        text += Fill("%1hyperLink%2->SetEmailAddress( L\"%3\", L\"%4\");", indent, number, link.target, link.subject);
        break;
    }
    text += LineEnd();
    text += Fill("%1%2->SetHyperLink(hyperLink%3);\n", indent, variable, number);
    return text;
}

} // namespace kv
