// JavaScript texts of polylines; the logic stands in objects/polylines.cpp. The success of a setter isn't asked for,
// but takes its number as in every language.
#include "backends/javascript/object.h"
#include "backends/text/coordinate_list.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPolyline2D(const QString& variable,
                                                                 const OdArray<OdGePoint2d>& points, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %5 = mSkMgr.InsertPolyline2D(polyPoints%3, %4);%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPolyline3D(const QString& variable,
                                                                 const OdArray<OdGePoint3d>& points, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %5 = mSkMgr.InsertPolyline3D(polyPoints%3, %4);%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertRichLine(const QString& variable,
                                                               const OdArray<OdGePoint3d>& points,
                                                               const QString& justification, double scale,
                                                               const QString& style, bool closed)
{
    ++Counters().LocalNameSequence;
    QString text = Line("%1var richLinePts = new Array( %2 );\n", kv::CoordinateList<kv::FixedPoint>(points));
    text += kv::LineEnd();
    text += Statement("%1var %7 = mSkMgr.InsertRichLine(richLinePts, %3, %4, \"%5\", %6);%2",
                      kv::FormOfConstant(kv::EnumForm::Qualified, justification), Fixed{scale}, style, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                                std::int32_t index, double value)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.%4(%5, %6);%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetSegmentAngle(const QString& variable, std::int32_t index,
                                                                double angle)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.SetSegmentAngle(%4, %5);%2", variable, index, Fixed{angle});
}
