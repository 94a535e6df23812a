// JavaScript texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPIJavaScript::WriteSaveCCS(const QString& name)
{
    return Statement("%1var kvCCSManager%4 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%4)%2"
                     "%1{%2"
                     "%1    var kvCustomCoordinateSystem%4 = kvCCSManager%4.SaveActiveViewAs(\"%3\");%2"
                     "%1}%2",
                     name, JavaScriptCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPIJavaScript::WriteRestoreCCS(const QString& name)
{
    return Statement("%1var kvCCSManager%4 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1var kvCustomCoordinateSystem%4 = kvCCSManager%4.GetNamedCustomCoordinateSystem(\"%3\");%2"
                     "%1kvCustomCoordinateSystem%4.Activate();%2",
                     name, JavaScriptCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPIJavaScript::WriteRemoveCCS(const QString& name)
{
    return Statement("%1var kvCCSManager%4 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%4)%2"
                     "%1{%2"
                     "%1    kvCCSManager%4.RemoveCustomCoordinateSystem(\"%3\");%2"
                     "%1}%2",
                     name, JavaScriptCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPIJavaScript::WritePreviousCCS()
{
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    var kvCustomCoordinateSystem%3 = kvCCSManager%3.GetPreviousCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3.Activate();%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPIJavaScript::WriteWorldCCS()
{
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    var kvCustomCoordinateSystem%3 = kvCCSManager%3.GetWorldCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3.Activate();%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPIJavaScript::WriteAlignCCSByView()
{
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByView();%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPIJavaScript::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1var kvCCSManager%4 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%4)%2"
                     "%1{%2"
                     "%1    var kvCustomCoordinateSystem%4 = "
                     "kvCCSManager%4.GetDefaultCustomCoordinateSystem(\"%3\");%2"
                     "%1    kvCustomCoordinateSystem%4.Activate();%2"
                     "%1}%2",
                     kv::FormOfConstant(kv::EnumForm::Bare, constant),
                     JavaScriptCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPIJavaScript::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.SetActiveCustomCoordinateSystemOrigin(%4,%5,%6);%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPIJavaScript::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemZAxis(%4, %5, %6, %7, %8, %9);%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPIJavaScript::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    // The y stands in the place of the z as well; the format's.
    return Statement("%1var kvCCSManager%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                     "%1var pointOnEntity%3 = new Array(%5,%6,%6);%2"
                     "%1if (null != kvCCSManager%3)%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByEntity(%4, pointOnEntity%3);%2"
                     "%1}%2",
                     JavaScriptCounters::OfProcess().WriteAlignCCSByEntity++, variable, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIJavaScript::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                              const OdGePoint3d& yPoint)
{
    // The percent sign in place of an indent, and the line end where the number of kvMathUtility belongs, are the
    // format's.
    return kv::FillChain(
        QStringLiteral("%1var kvCustomCoordinateSystemMgr_%3;%2"
                       "%kvCustomCoordinateSystemMgr_%3 = mDoc.GetCustomCoordinateSystemManager();%2"
                       "%1var kvMathUtility_%2 = mApp.GetMathUtility();%2"
                       "%1var Origin_%3 = kvMathUtility_%3.CreatePoint( %4, %5, %6 );%2"
                       "%1var XAxisThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %7, %8, %9 );%2"
                       "%1var XYPlaneThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %10, %11, %12 );%2"
                       "%1kvCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                       "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"),
        CurrentIndent(), kv::LineEnd(), JavaScriptCounters::OfProcess().WriteCreateCCSFromPoints++,
        kv::GeneralPoint{origin}, kv::GeneralPoint{xPoint}, kv::GeneralPoint{yPoint});
}
