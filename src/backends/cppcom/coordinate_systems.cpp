// C++ COM texts of custom coordinate systems; the logic stands in core/coordinate_systems.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/safe_array.h"
#include "backends/text/enumerations.h"

QString CZtConverterKVAPICPPCOM::WriteSaveCCS(const QString& name)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%4 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1ICustomCoordinateSystemPtr kvCustomCoordinateSystem%4;%2"
                     "%1kvCreateObjectResult_e kvResult%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4->SaveActiveViewAs( L\"%3\", &kvResult%4 );%2"
                     "%1}%2",
                     name, ComCounters::OfProcess().WriteSaveCCS++);
}

QString CZtConverterKVAPICPPCOM::WriteRestoreCCS(const QString& name)
{
    return Statement(
        "%1ICustomCoordinateSystemManagerPtr kvCCSManager%4 = kvDoc->GetCustomCoordinateSystemManager();%2"
        "%1ICustomCoordinateSystemPtr kvCustomCoordinateSystem%4 = kvCCSManager%4->GetNamedCustomCoordinateSystem( "
        "L\"%3\");%2"
        "%1kvCustomCoordinateSystem%4->Activate();%2",
        name, ComCounters::OfProcess().WriteRestoreCCS++);
}

QString CZtConverterKVAPICPPCOM::WriteRemoveCCS(const QString& name)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%4 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1VARIANT_BOOL bResult%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    bResult%4=kvCCSManager%4->RemoveCustomCoordinateSystem( L\"%3\" );%2"
                     "%1}%2",
                     name, ComCounters::OfProcess().WriteRemoveCCS++);
}

QString CZtConverterKVAPICPPCOM::WritePreviousCCS()
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1ICustomCoordinateSystemPtr kvCustomCoordinateSystem%3;%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3->GetPreviousCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3->Activate();%2"
                     "%1}%2",
                     ComCounters::OfProcess().WritePreviousCCS++);
}

QString CZtConverterKVAPICPPCOM::WriteWorldCCS()
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1ICustomCoordinateSystemPtr kvCustomCoordinateSystem%3;%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%3 = kvCCSManager%3->GetWorldCustomCoordinateSystem();%2"
                     "%1    kvCustomCoordinateSystem%3->Activate();%2"
                     "%1}%2",
                     ComCounters::OfProcess().WriteWorldCCS++);
}

QString CZtConverterKVAPICPPCOM::WriteAlignCCSByView()
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemByView( );%2"
                     "%1}%2",
                     ComCounters::OfProcess().WriteAlignCCSByView++);
}

QString CZtConverterKVAPICPPCOM::WriteDefaultCCS(const QString& constant)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%4 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1ICustomCoordinateSystemPtr kvCustomCoordinateSystem%4;%2"
                     "%1if ( NULL != kvCCSManager%4 )%2"
                     "%1{%2"
                     "%1    kvCustomCoordinateSystem%4 = kvCCSManager%4->GetDefaultCustomCoordinateSystem( %3 );%2"
                     "%1    kvCustomCoordinateSystem%4->Activate();%2"
                     "%1}%2",
                     kv::FormOfConstant(kv::EnumForm::Bare, constant), ComCounters::OfProcess().WriteDefaultCCS++);
}

QString CZtConverterKVAPICPPCOM::WriteSetCCSOrigin(const OdGePoint3d& point)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->SetActiveCustomCoordinateSystemOrigin( %4,%5,%6 );%2"
                     "%1}%2",
                     ComCounters::OfProcess().WriteSetCCSOrigin++, point);
}

QString CZtConverterKVAPICPPCOM::WriteAlignCCSZAxis(const OdGePoint3d& origin, const OdGePoint3d& zPoint)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1if ( NULL != kvCCSManager%3 )%2"
                     "%1{%2"
                     "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2"
                     "%1}%2",
                     ComCounters::OfProcess().WriteAlignCCSZAxis++, origin, zPoint);
}

QString CZtConverterKVAPICPPCOM::WriteAlignCCSByEntity(const QString& variable, const OdGePoint3d& point)
{
    const int number = ComCounters::OfProcess().WriteAlignCCSByEntity++;
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "pointOnEntity", number);
    QString text = Statement(
        "%1ICustomCoordinateSystemManagerPtr kvCCSManager%3 = kvDoc->GetCustomCoordinateSystemManager();%2", number);
    text += array.Declare(CurrentIndent(), 3);
    // The second coordinate stands in the place of the third as well; the format's.
    text += array.Block(CurrentIndent(), CoordinateTexts(OdGePoint3d{point.x, point.y, point.y}, kv::GeneralText));
    text += Statement("%1if ( NULL != kvCCSManager%3 )%2"
                      "%1{%2"
                      "%1    kvCCSManager%3->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"
                      "%1}%2",
                      number, variable);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteCreateCCSFromPoints(const OdGePoint3d& origin, const OdGePoint3d& xPoint,
                                                          const OdGePoint3d& yPoint)
{
    return Statement("%1ICustomCoordinateSystemManagerPtr kvCustomCoordinateSystemMgr_%3 = "
                     "kvDoc->GetCustomCoordinateSystemManager();%2"
                     "%1if ( NULL != kvCustomCoordinateSystemMgr_%3 )%2"
                     "%1{%2"
                     "%1    IMathUtilityPtr kvMathUtility_%3 = pConnection->m_KvApp->GetMathUtility();%2"
                     "%1    IMathPointPtr Origin_%3 = kvMathUtility_%3->CreatePoint( %4, %5, %6 );%2"
                     "%1    IMathPointPtr XAxisThroughPoint_%3 = kvMathUtility_%3->CreatePoint( %7, %8, %9 );%2"
                     "%1    IMathPointPtr XYPlaneThroughPoint_%3 = kvMathUtility_%3->CreatePoint( %10, %11, %12 );%2"
                     "%1    kvCustomCoordinateSystemMgr_%3->AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                     "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"
                     "%1}%2",
                     ComCounters::OfProcess().WriteCreateCCSFromPoints++, origin, xPoint, yPoint);
}
