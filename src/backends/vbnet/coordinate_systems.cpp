// VB.NET texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/text/enumerations.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

QString CZtConverterKVAPIVbNet::WriteSaveCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem%2"
                     "%1Dim kvResult%4 As Morvane.kvCreateObjectResult_e%2"
                     "%1If kvCCSManager%4 IsNot Nothing Then%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4.SaveActiveViewAs( \"%3\", kvResult%4 )%2"
                     "%1End If%2",
                     name, VbNetCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPIVbNet::WriteRestoreCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem = "
                     "kvCCSManager%4.GetNamedCustomCoordinateSystem( \"%3\")%2"
                     "%1kvCustomCoordinateSystem%4.Activate()%2",
                     name, VbNetCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPIVbNet::WriteRemoveCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If kvCCSManager%4 IsNot Nothing Then%2"
                     "%1    kvCCSManager%4.RemoveCustomCoordinateSystem( \"%3\" )%2"
                     "%1End If%2",
                     name, VbNetCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPIVbNet::WritePreviousCCS()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%3 As Morvane.CustomCoordinateSystem%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3.GetPreviousCustomCoordinateSystem()%2"
                     "%1    kvCustomCoordinateSystem%3.Activate()%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPIVbNet::WriteWorldCCS()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%3 As Morvane.CustomCoordinateSystem%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3.GetWorldCustomCoordinateSystem()%2"
                     "%1    kvCustomCoordinateSystem%3.Activate()%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPIVbNet::WriteAlignCCSByView()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByView( )%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPIVbNet::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem%2"
                     "%1If kvCCSManager%4 IsNot Nothing Then%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4.GetDefaultCustomCoordinateSystem( %3 )%2"
                     "%1    kvCustomCoordinateSystem%4.Activate()%2"
                     "%1End If%2",
                     kv::FormOfConstant(kv::EnumForm::Morvane, constant), VbNetCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPIVbNet::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCCSManager%3.SetActiveCustomCoordinateSystemOrigin( %4,%5,%6 )%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPIVbNet::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 )%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPIVbNet::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    // The y stands in the place of the z too; the format's.
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim pointOnEntity%3(2) As Double%2"
                     "%1pointOnEntity%3(0) = %5%2"
                     "%1pointOnEntity%3(1) = %6%2"
                     "%1pointOnEntity%3(2) = %6%2"
                     "%1If kvCCSManager%3 IsNot Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 )%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteAlignCCSByEntity++, variable, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIVbNet::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                         const OdGePoint3d& yPoint)
{
    return Statement("%1Dim kvCustomCoordinateSystemMgr_%3 As Morvane.CustomCoordinateSystemManager = "
                     "kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If kvCustomCoordinateSystemMgr_%3 IsNot Nothing Then%2"
                     "%1    Dim kvMathUtility_%3 As Morvane.MathUtility = kvApp.GetMathUtility()%2"
                     "%1    Dim Origin_%3 As Morvane.MathPoint, XAxisThroughPoint_%3 As Morvane.MathPoint, "
                     "XYPlaneThroughPoint_%3 As Morvane.MathPoint%2"
                     "%1    Origin_%3 = kvMathUtility_%3.CreatePoint( %4, %5, %6 )%2"
                     "%1    XAxisThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %7, %8, %9 )%2"
                     "%1    XYPlaneThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %10, %11, %12 )%2"
                     "%1    kvCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                     "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 )%2"
                     "%1End If%2",
                     VbNetCounters::OfProcess().WriteCreateCCSFromPoints++, origin, xPoint, yPoint);
}
