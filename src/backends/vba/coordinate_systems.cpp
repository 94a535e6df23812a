// VBA texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/text/enumerations.h"
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

QString CZtConverterKVAPIVba::WriteSaveCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem%2"
                     "%1Dim kvResult%4 As Morvane.kvCreateObjectResult_e%2"
                     "%1If Not kvCCSManager%4 Is Nothing Then%2"
                     "%1    Set kvCustomCoordinateSystem%4 = kvCCSManager%4.SaveActiveViewAs( \"%3\", kvResult%4 )%2"
                     "%1End If%2",
                     name, VbaCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPIVba::WriteRestoreCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem%2"
                     "%1Set kvCustomCoordinateSystem%4 = kvCCSManager%4.GetNamedCustomCoordinateSystem( \"%3\")%2"
                     "%1kvCustomCoordinateSystem%4.Activate%2",
                     name, VbaCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPIVba::WriteRemoveCCS(const QString& name)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If Not kvCCSManager%4 Is Nothing Then%2"
                     "%1    kvCCSManager%4.RemoveCustomCoordinateSystem \"%3\"%2"
                     "%1End If%2",
                     name, VbaCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPIVba::WritePreviousCCS()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%3 As Morvane.CustomCoordinateSystem%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    Set kvCustomCoordinateSystem%3 = kvCCSManager%3.GetPreviousCustomCoordinateSystem()%2"
                     "%1    kvCustomCoordinateSystem%3.Activate%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPIVba::WriteWorldCCS()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%3 As Morvane.CustomCoordinateSystem%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    Set kvCustomCoordinateSystem%3 = kvCCSManager%3.GetWorldCustomCoordinateSystem()%2"
                     "%1    kvCustomCoordinateSystem%3.Activate%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPIVba::WriteAlignCCSByView()
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByView%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPIVba::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1Dim kvCCSManager%4 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%4 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim kvCustomCoordinateSystem%4 As Morvane.CustomCoordinateSystem%2"
                     "%1If Not kvCCSManager%4 Is Nothing Then%2"
                     "%1    Set kvCustomCoordinateSystem%4 = kvCCSManager%4.GetDefaultCustomCoordinateSystem( %3 )%2"
                     "%1    kvCustomCoordinateSystem%4.Activate%2"
                     "%1End If%2",
                     kv::FormOfConstant(kv::EnumForm::Morvane, constant), VbaCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPIVba::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    kvCCSManager%3.SetActiveCustomCoordinateSystemOrigin %4,%5,%6%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPIVba::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemZAxis %4, %5, %6, %7, %8, %9%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPIVba::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    // The y stands in the place of the z too; the format's.
    return Statement("%1Dim kvCCSManager%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCCSManager%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1Dim pointOnEntity%3(2) As Double%2"
                     "%1pointOnEntity%3(0) = %5%2"
                     "%1pointOnEntity%3(1) = %6%2"
                     "%1pointOnEntity%3(2) = %6%2"
                     "%1If Not kvCCSManager%3 Is Nothing Then%2"
                     "%1    kvCCSManager%3.AlignActiveCustomCoordinateSystemByEntity %4, pointOnEntity%3%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteAlignCCSByEntity++, variable, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIVba::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                       const OdGePoint3d& yPoint)
{
    return Statement("%1Dim kvCustomCoordinateSystemMgr_%3 As Morvane.CustomCoordinateSystemManager%2"
                     "%1Set kvCustomCoordinateSystemMgr_%3 = kvDoc.GetCustomCoordinateSystemManager()%2"
                     "%1If Not kvCustomCoordinateSystemMgr_%3 Is Nothing Then%2"
                     "%1    Dim kvMathUtility_%3 As Morvane.MathUtility%2"
                     "%1    Set kvMathUtility_%3 = kvApp.GetMathUtility()%2"
                     "%1    Dim Origin_%3 As Morvane.MathPoint, XAxisThroughPoint_%3 As Morvane.MathPoint, "
                     "XYPlaneThroughPoint_%3 As Morvane.MathPoint%2"
                     "%1    Set Origin_%3 = kvMathUtility_%3.CreatePoint( %4, %5, %6 )%2"
                     "%1    Set XAxisThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %7, %8, %9 )%2"
                     "%1    Set XYPlaneThroughPoint_%3 = kvMathUtility_%3.CreatePoint( %10, %11, %12 )%2"
                     "%1    kvCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane Origin_%3, "
                     "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3%2"
                     "%1End If%2",
                     VbaCounters::OfProcess().WriteCreateCCSFromPoints++, origin, xPoint, yPoint);
}
