// Operations that this language does not write yet.
#include "backends/csharp/converter.h"
#include "backends/csharp/object.h"

QString CZtConverterKVAPICSharp::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetSelectionFilter(const SelectionMethod& /*method*/, const QStringList& /*typeNames*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteAddEntitiesToGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRemoveEntitiesFromGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteEraseEntity(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteMirrorEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*firstPoint*/, const OdGePoint3d& /*secondPoint*/, bool /*flag*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteStretchEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*startCorner*/, const OdGePoint3d& /*endCorner*/, const OdGeVector3d& /*displacement*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteCopyEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteMoveEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRotateEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteScaleEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*factor*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteTrimEntities(const QStringList& /*cutting*/, const QStringList& /*removed*/, const OdArray<OdGePoint3d>& /*points*/, const TrimSearch& /*search*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteExtendEntities(const QStringList& /*boundaries*/, const QStringList& /*extended*/, const OdArray<OdGePoint3d>& /*points*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteFilletEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteChamferEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteFilletChamferOptions(const QString& /*polyline*/, bool /*isFillet*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteFitPolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteDecurvePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSplinePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteJoinPolyline(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteJoinLine(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteJoinCircleArc(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteJoinEntity(const QString& /*first*/, const QString& /*second*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSplitPolyline(const QString& /*variable*/, std::int32_t /*index*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteAddVertexAfter(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetVertexCoordinate(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteStraightenPolyline(const QString& /*variable*/, std::int32_t /*first*/, std::int32_t /*second*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetSegmentWidths(const QString& /*variable*/, std::int32_t /*segment*/, double /*start*/, double /*end*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteDeleteVertex(const QString& /*variable*/, std::int32_t /*index*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteInsertPolyline2DBlock(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, bool /*closed*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRemoveClipBoundary(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetClipBoundary(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteActivateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteActivateModel() { return {}; }
QString CZtConverterKVAPICSharp::WriteRenameSheet(const QString& /*oldName*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteCreateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRemoveSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteCopySheet(const QString& /*source*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteCreateSheetByTemplate(const QString& /*fileName*/, const QString& /*second*/, const QString& /*third*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRenameNamedView(const QString& /*view*/, const QString& /*newName*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetNamedViewClass(const QString& /*view*/, const QString& /*viewClass*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetNamedViewWindow(const QString& /*view*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteZoom(const QString& /*range*/, bool /*isWindow*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteActivateViewport(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteInsertPolygonalViewport(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*sheet*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteInsertViewTiles(const QString& /*layout*/, bool /*flag*/, const QStringList& /*tiles*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSaveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRestoreCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteRemoveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPICSharp::WritePreviousCCS() { return {}; }
QString CZtConverterKVAPICSharp::WriteWorldCCS() { return {}; }
QString CZtConverterKVAPICSharp::WriteAlignCCSByView() { return {}; }
QString CZtConverterKVAPICSharp::WriteDefaultCCS(const QString& /*constant*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetCCSOrigin(const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteAlignCCSZAxis(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*zPoint*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteAlignCCSByEntity(const QString& /*variable*/, const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteCreateCCSFromPoints(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*xPoint*/, const OdGePoint3d& /*yPoint*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteGetInterfaceFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteGetSystemFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteGetDrawingSupportFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteStringArray(const QString& /*variable*/, const QString& /*property*/, const QStringList& /*values*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteSetElementColor(const OdCmColor& /*color*/, std::int32_t /*element*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteInsertHatchByEntities(const QString& /*target*/, const QString& /*boundary*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/, bool /*erase*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteGradientColors(const QString& /*hatch*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, bool /*centered*/, double /*value*/) { return {}; }
QString CZtConverterKVAPICSharp::WriteInsertEmbeddedObject(const QString& /*target*/, const QString& /*path*/, bool /*flag0*/, bool /*flag1*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetPairProperty(const QString& /*variable*/, const QString& /*setter*/, std::int32_t /*index*/, double /*value*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetSegmentAngle(const QString& /*variable*/, std::int32_t /*index*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetAttributeValue(const QString& /*variable*/, const QString& /*word*/, const QString& /*tag*/, const QString& /*value*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteInsertRegion(const QString& /*target*/, const QStringList& /*names*/, std::int32_t /*counter*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteInsertHatchByBoundary(const QString& /*target*/, const OdArray<std::int32_t>& /*counts*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteInsertHatchByInternalPoints(const QString& /*target*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteHatchBoundaryEntities(const QString& /*target*/, const QStringList& /*names*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteCreateNamedView(const QString& /*variable*/, const QString& /*name*/, const QString& /*viewClass*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*isSheet*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetSolidBackground(const QString& /*variable*/, const OdCmColor& /*color*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetGradientBackground(const QString& /*variable*/, bool /*flag*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, const OdCmColor& /*color3*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetImageBackground(const QString& /*variable*/, const QString& /*file*/, const QString& /*mode*/, double /*a*/, double /*b*/, double /*c*/, double /*d*/) { return {}; }
QString CZtConverterKVAPIObjectCSharp::WriteSetNamedProperty(const QString& /*word*/, const QString& /*value*/, bool /*isModel*/, const QString& /*sheet*/) { return {}; }
