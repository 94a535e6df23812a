// C++ COM texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                         double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%6 = kvSketchManager->InsertLeader( variant%3, %4, L\"%5\" );%2", number, Fixed{width},
                      content, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLeaderAnnotation(const QString& variable, const QString& text,
                                                                const OdGePoint3d& point, bool isTolerance)
{
    QString code = Statement(
        "%1IMathUtilityPtr kvMathUtility = pConnection->m_KvApp->GetMathUtility();%2%1IMathPointPtr insertionPoint = kvMathUtility->CreatePoint( %3, %4, %5 );%2",
        point);
    code += isTolerance ? Statement("%1%3->SetToleranceAnnotation( L\"%4\", insertionPoint );%2", variable, text)
                        : Statement("%1%3->SetBlockAnnotation( L\"%4\", insertionPoint );%2", variable, text);
    return code;
}
