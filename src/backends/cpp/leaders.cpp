// C++ API texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                      double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertLeader( Coordinates%3, %4, L\"%5\", &%6 );%2", number, Fixed{width},
                      content, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetLeaderAnnotation(const QString& variable, const QString& text,
                                                             const OdGePoint3d& point, bool isTolerance)
{
    QString code = Statement(
        "%1kvMathUtility_ptr kvMathUtility;%2%1m_pKvApp->GetMathUtility(&kvMathUtility);%2%1kvMathPoint_ptr insertionPoint;%2%1kvMathUtility->CreatePoint( %3, %4, %5, &insertionPoint );%2",
        point);
    code += isTolerance ? Statement("%1%3->SetToleranceAnnotation( L\"%4\", insertionPoint );%2", variable, text)
                        : Statement("%1%3->SetBlockAnnotation( L\"%4\", insertionPoint );%2", variable, text);
    return code;
}
