// Operations that this language does not write yet.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/object.h"

QString CZtConverterKVAPICPPCOM::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetSelectionFilter(const SelectionMethod& /*method*/, const QStringList& /*typeNames*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteAddEntitiesToGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRemoveEntitiesFromGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteEraseEntity(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteMirrorEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*firstPoint*/, const OdGePoint3d& /*secondPoint*/, bool /*flag*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteStretchEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*startCorner*/, const OdGePoint3d& /*endCorner*/, const OdGeVector3d& /*displacement*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteCopyEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteMoveEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRotateEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteScaleEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*factor*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteTrimEntities(const QStringList& /*cutting*/, const QStringList& /*removed*/, const OdArray<OdGePoint3d>& /*points*/, const TrimSearch& /*search*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteExtendEntities(const QStringList& /*boundaries*/, const QStringList& /*extended*/, const OdArray<OdGePoint3d>& /*points*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteFilletEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteChamferEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteFilletChamferOptions(const QString& /*polyline*/, bool /*isFillet*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteFitPolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteDecurvePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSplinePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteJoinPolyline(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteJoinLine(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteJoinCircleArc(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteJoinEntity(const QString& /*first*/, const QString& /*second*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSplitPolyline(const QString& /*variable*/, std::int32_t /*index*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteAddVertexAfter(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetVertexCoordinate(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteStraightenPolyline(const QString& /*variable*/, std::int32_t /*first*/, std::int32_t /*second*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetSegmentWidths(const QString& /*variable*/, std::int32_t /*segment*/, double /*start*/, double /*end*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteDeleteVertex(const QString& /*variable*/, std::int32_t /*index*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteInsertPolyline2DBlock(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, bool /*closed*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRemoveClipBoundary(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetClipBoundary(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteActivateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteActivateModel() { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRenameSheet(const QString& /*oldName*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteCreateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRemoveSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteCopySheet(const QString& /*source*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteCreateSheetByTemplate(const QString& /*fileName*/, const QString& /*second*/, const QString& /*third*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRenameNamedView(const QString& /*view*/, const QString& /*newName*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetNamedViewClass(const QString& /*view*/, const QString& /*viewClass*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetNamedViewWindow(const QString& /*view*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteZoom(const QString& /*range*/, bool /*isWindow*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteActivateViewport(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteInsertPolygonalViewport(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*sheet*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteInsertViewTiles(const QString& /*layout*/, bool /*flag*/, const QStringList& /*tiles*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSaveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRestoreCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteRemoveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WritePreviousCCS() { return {}; }
QString CZtConverterKVAPICPPCOM::WriteWorldCCS() { return {}; }
QString CZtConverterKVAPICPPCOM::WriteAlignCCSByView() { return {}; }
QString CZtConverterKVAPICPPCOM::WriteDefaultCCS(const QString& /*constant*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetCCSOrigin(const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteAlignCCSZAxis(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*zPoint*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteAlignCCSByEntity(const QString& /*variable*/, const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteCreateCCSFromPoints(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*xPoint*/, const OdGePoint3d& /*yPoint*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteGetInterfaceFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteGetSystemFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteGetDrawingSupportFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteStringArray(const QString& /*variable*/, const QString& /*property*/, const QStringList& /*values*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteSetElementColor(const OdCmColor& /*color*/, std::int32_t /*element*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteInsertHatchByEntities(const QString& /*target*/, const QString& /*boundary*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/, bool /*erase*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteGradientColors(const QString& /*hatch*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, bool /*centered*/, double /*value*/) { return {}; }
QString CZtConverterKVAPICPPCOM::WriteInsertEmbeddedObject(const QString& /*target*/, const QString& /*path*/, bool /*flag0*/, bool /*flag1*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetPairProperty(const QString& /*variable*/, const QString& /*setter*/, std::int32_t /*index*/, double /*value*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetSegmentAngle(const QString& /*variable*/, std::int32_t /*index*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetAttributeValue(const QString& /*variable*/, const QString& /*word*/, const QString& /*tag*/, const QString& /*value*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRegion(const QString& /*target*/, const QStringList& /*names*/, std::int32_t /*counter*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteInsertHatchByBoundary(const QString& /*target*/, const OdArray<std::int32_t>& /*counts*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteInsertHatchByInternalPoints(const QString& /*target*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteHatchBoundaryEntities(const QString& /*target*/, const QStringList& /*names*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteCreateNamedView(const QString& /*variable*/, const QString& /*name*/, const QString& /*viewClass*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*isSheet*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetSolidBackground(const QString& /*variable*/, const OdCmColor& /*color*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetGradientBackground(const QString& /*variable*/, bool /*flag*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, const OdCmColor& /*color3*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetImageBackground(const QString& /*variable*/, const QString& /*file*/, const QString& /*mode*/, double /*a*/, double /*b*/, double /*c*/, double /*d*/) { return {}; }
QString CZtConverterKVAPIObjectCPPCOM::WriteSetNamedProperty(const QString& /*word*/, const QString& /*value*/, bool /*isModel*/, const QString& /*sheet*/) { return {}; }
