// C++ API texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPICPP::WriteSaveCCS(const QString& name)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%4;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%4 );%2"
                     "%1kvCustomCoordinateSystem_ptr kvCustomCoordinateSystem%4;%2"
                     "%1kvCreateObjectResult_e kvResult%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%4->SaveActiveViewAs( L\"%3\", &kvCustomCoordinateSystem%4, &kvResult%4 "
                     ");%2"
                     "%1}%2",
                     name, CppCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPICPP::WriteRestoreCCS(const QString& name)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%4;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%4 );%2"
                     "%1kvCustomCoordinateSystem_ptr kvCustomCoordinateSystem%4;%2"
                     "%1kvCCSManager%4->GetNamedCustomCoordinateSystem( L\"%3\", &kvCustomCoordinateSystem%4);%2"
                     "%1kvCustomCoordinateSystem%4->Activate();%2",
                     name, CppCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPICPP::WriteRemoveCCS(const QString& name)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%4;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%4 );%2"
                     "%1bool bResult%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%4->RemoveCustomCoordinateSystem( L\"%3\", &bResult%4 );%2"
                     "%1}%2",
                     name, CppCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPICPP::WritePreviousCCS()
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1kvCustomCoordinateSystem_ptr kvCustomCoordinateSystem%3;%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->GetPreviousCustomCoordinateSystem( &kvCustomCoordinateSystem%3 );%2"
                     "%1    kvCustomCoordinateSystem%3->Activate();%2"
                     "%1}%2",
                     CppCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPICPP::WriteWorldCCS()
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1kvCustomCoordinateSystem_ptr kvCustomCoordinateSystem%3;%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->GetWorldCustomCoordinateSystem( &kvCustomCoordinateSystem%3 );%2"
                     "%1    kvCustomCoordinateSystem%3->Activate();%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPICPP::WriteAlignCCSByView()
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemByView( );%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPICPP::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%4;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%4 );%2"
                     "%1kvCustomCoordinateSystem_ptr kvCustomCoordinateSystem%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%4->GetDefaultCustomCoordinateSystem( %3, &kvCustomCoordinateSystem%4 );%2"
                     "%1    kvCustomCoordinateSystem%4->Activate();%2"
                     "%1}%2",
                     kv::FormOfConstant(kv::EnumForm::Bare, constant), CppCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPICPP::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->SetActiveCustomCoordinateSystemOrigin( %4,%5,%6 );%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPICPP::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPICPP::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCCSManager%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCCSManager%3 );%2"
                     "%1kvDoubleArray pointOnEntity%3;%2"
                     "%1pointOnEntity%3.add(%5);pointOnEntity%3.add(%6);pointOnEntity%3.add(%6);%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteAlignCCSByEntity++, variable, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICPP::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                       const OdGePoint3d& yPoint)
{
    return Statement("%1kvCustomCoordinateSystemManager_ptr kvCustomCoordinateSystemMgr_%3;%2"
                     "%1kvDoc->GetCustomCoordinateSystemManager( &kvCustomCoordinateSystemMgr_%3 );%2"
                     "%1if ( NULL != kvCustomCoordinateSystemMgr_%3 )%2"
                     "%1{%2"
                     "%1    kvMathUtility_ptr kvMathUtility_%3;%2"
                     "%1    m_pKvApp->GetMathUtility( &kvMathUtility_%3 );%2"
                     "%1    kvMathPoint_ptr Origin_%3, XAxisThroughPoint_%3, XYPlaneThroughPoint_%3;%2"
                     "%1    kvMathUtility_%3->CreatePoint( %4, %5, %6, &Origin_%3 );%2"
                     "%1    kvMathUtility_%3->CreatePoint( %7, %8, %9, &XAxisThroughPoint_%3 );%2"
                     "%1    kvMathUtility_%3->CreatePoint( %10, %11, %12, &XYPlaneThroughPoint_%3 );%2"
                     "%1    kvCustomCoordinateSystemMgr_%3->AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                     "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"
                     "%1}%2",
                     CppCounters::OfProcess().WriteCreateCCSFromPoints++, origin, xPoint, yPoint);
}
