// C# texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPICSharp::WriteSaveCCS(const QString& name)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1CustomCoordinateSystem kvCustomCoordinateSystem%4;%2"
                     "%1kvCreateObjectResult_e kvResult%4;%2"
                     "%1if ( null != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4.SaveActiveViewAs( \"%3\", out kvResult%4 );%2"
                     "%1}%2",
                     name, CSharpCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPICSharp::WriteRestoreCCS(const QString& name)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1CustomCoordinateSystem kvCustomCoordinateSystem%4 = "
                     "kvCCSManager%4.GetNamedCustomCoordinateSystem( \"%3\");%2"
                     "%1kvCustomCoordinateSystem%4.Activate();%2",
                     name, CSharpCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPICSharp::WriteRemoveCCS(const QString& name)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if ( null != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%4.RemoveCustomCoordinateSystem( \"%3\" );%2"
                     "%1}%2",
                     name, CSharpCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPICSharp::WritePreviousCCS()
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1CustomCoordinateSystem kvCustomCoordinateSystem%3;%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3.GetPreviousCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3.Activate();%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPICSharp::WriteWorldCCS()
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1CustomCoordinateSystem kvCustomCoordinateSystem%3;%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3.GetWorldCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3.Activate();%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPICSharp::WriteAlignCCSByView()
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByView( );%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPICSharp::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1CustomCoordinateSystem kvCustomCoordinateSystem%4;%2"
                     "%1if ( null != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4.GetDefaultCustomCoordinateSystem( %3 );%2"
                     "%1    kvCustomCoordinateSystem%4.Activate();%2"
                     "%1}%2",
                     kv::FormOfConstant(kv::EnumForm::Qualified, constant),
                     CSharpCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPICSharp::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.SetActiveCustomCoordinateSystemOrigin( %4,%5,%6 );%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPICSharp::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPICSharp::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    // The third element takes y again; the format's.
    return Statement("%1CustomCoordinateSystemManager kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
                     "%1double[] pointOnEntity%3 = new double[3];%2"
                     "%1pointOnEntity%3[0] = %5;pointOnEntity%3[1] = %6;pointOnEntity%3[2] = %6;%2"
                     "%1if ( null != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"
                     "%1}%2",
                     CSharpCounters::OfProcess().WriteAlignCCSByEntity++, variable, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICSharp::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                          const OdGePoint3d& yPoint)
{
    return Statement(
        "%1CustomCoordinateSystemManager kvCustomCoordinateSystemMgr_%3 = kvDoc.GetCustomCoordinateSystemManager();%2"
        "%1if ( null != kvCustomCoordinateSystemMgr_%3 )%2"
        "%1{%2"
        "%1    MathUtility kvMathUtility_%3 = kvApp.GetMathUtility();%2"
        "%1    MathPoint Origin_%3, XAxisThroughPoint_%3, XYPlaneThroughPoint_%3;%2"
        "%1    Origin_%3 = kvMathUtility_%3.CreatePoint( %4, %5, %6 );%2"
        "%1    XAxisThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %7, %8, %9 );%2"
        "%1    XYPlaneThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %10, %11, %12 );%2"
        "%1    kvCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
        "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"
        "%1}%2",
        CSharpCounters::OfProcess().WriteCreateCCSFromPoints++, origin, xPoint, yPoint);
}
