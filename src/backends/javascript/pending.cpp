// Operations that this language does not write yet.
#include "backends/javascript/converter.h"
#include "backends/javascript/object.h"

QString CZtConverterKVAPIJavaScript::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetSelectionFilter(const SelectionMethod& /*method*/, const QStringList& /*typeNames*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteAddEntitiesToGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRemoveEntitiesFromGroup(const QStringList& /*names*/, const QString& /*group*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteEraseEntity(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteMirrorEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*firstPoint*/, const OdGePoint3d& /*secondPoint*/, bool /*flag*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteStretchEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*startCorner*/, const OdGePoint3d& /*endCorner*/, const OdGeVector3d& /*displacement*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteCopyEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteMoveEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/, bool /*first*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRotateEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteScaleEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/, double /*factor*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteTrimEntities(const QStringList& /*cutting*/, const QStringList& /*removed*/, const OdArray<OdGePoint3d>& /*points*/, const TrimSearch& /*search*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteExtendEntities(const QStringList& /*boundaries*/, const QStringList& /*extended*/, const OdArray<OdGePoint3d>& /*points*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteFilletEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteChamferEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/, const QStringList& /*secondNames*/, const OdGePoint3d& /*secondPoint*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteFilletChamferOptions(const QString& /*polyline*/, bool /*isFillet*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteFitPolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteDecurvePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSplinePolyline(const QStringList& /*names*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteJoinPolyline(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteJoinLine(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteJoinCircleArc(const QString& /*first*/, const QString& /*other*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteJoinEntity(const QString& /*first*/, const QString& /*second*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSplitPolyline(const QString& /*variable*/, std::int32_t /*index*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteAddVertexAfter(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetVertexCoordinate(const QString& /*variable*/, std::int32_t /*index*/, const OdGePoint3d& /*point*/, bool /*is3D*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteStraightenPolyline(const QString& /*variable*/, std::int32_t /*first*/, std::int32_t /*second*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetSegmentWidths(const QString& /*variable*/, std::int32_t /*segment*/, double /*start*/, double /*end*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteDeleteVertex(const QString& /*variable*/, std::int32_t /*index*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteInsertPolyline2DBlock(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, bool /*closed*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRemoveClipBoundary(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetClipBoundary(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteActivateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteActivateModel() { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRenameSheet(const QString& /*oldName*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteCreateSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRemoveSheet(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteCopySheet(const QString& /*source*/, const QString& /*newName*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteCreateSheetByTemplate(const QString& /*fileName*/, const QString& /*second*/, const QString& /*third*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRenameNamedView(const QString& /*view*/, const QString& /*newName*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetNamedViewClass(const QString& /*view*/, const QString& /*viewClass*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetNamedViewWindow(const QString& /*view*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*byName*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteZoom(const QString& /*range*/, bool /*isWindow*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteActivateViewport(const QString& /*variable*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteInsertPolygonalViewport(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*sheet*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteInsertViewTiles(const QString& /*layout*/, bool /*flag*/, const QStringList& /*tiles*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSaveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRestoreCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteRemoveCCS(const QString& /*name*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WritePreviousCCS() { return {}; }
QString CZtConverterKVAPIJavaScript::WriteWorldCCS() { return {}; }
QString CZtConverterKVAPIJavaScript::WriteAlignCCSByView() { return {}; }
QString CZtConverterKVAPIJavaScript::WriteDefaultCCS(const QString& /*constant*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetCCSOrigin(const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteAlignCCSZAxis(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*zPoint*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteAlignCCSByEntity(const QString& /*variable*/, const OdGePoint3d& /*point*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteCreateCCSFromPoints(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*xPoint*/, const OdGePoint3d& /*yPoint*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteGetInterfaceFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteGetSystemFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteGetDrawingSupportFiles(QString& /*variable*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteStringArray(const QString& /*variable*/, const QString& /*property*/, const QStringList& /*values*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteSetElementColor(const OdCmColor& /*color*/, std::int32_t /*element*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteInsertHatchByEntities(const QString& /*target*/, const QString& /*boundary*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/, bool /*erase*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteGradientColors(const QString& /*hatch*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, bool /*centered*/, double /*value*/) { return {}; }
QString CZtConverterKVAPIJavaScript::WriteInsertEmbeddedObject(const QString& /*target*/, const QString& /*path*/, bool /*flag0*/, bool /*flag1*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetPairProperty(const QString& /*variable*/, const QString& /*setter*/, std::int32_t /*index*/, double /*value*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetSegmentAngle(const QString& /*variable*/, std::int32_t /*index*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetAttributeValue(const QString& /*variable*/, const QString& /*word*/, const QString& /*tag*/, const QString& /*value*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteInsertRegion(const QString& /*target*/, const QStringList& /*names*/, std::int32_t /*counter*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteInsertHatchByBoundary(const QString& /*target*/, const OdArray<std::int32_t>& /*counts*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteInsertHatchByInternalPoints(const QString& /*target*/, const OdArray<OdGePoint2d>& /*points*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteHatchBoundaryEntities(const QString& /*target*/, const QStringList& /*names*/, const QString& /*pattern*/, double /*scale*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteCreateNamedView(const QString& /*variable*/, const QString& /*name*/, const QString& /*viewClass*/, const OdGePoint3d& /*corner1*/, const OdGePoint3d& /*corner2*/, bool /*isSheet*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetSolidBackground(const QString& /*variable*/, const OdCmColor& /*color*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetGradientBackground(const QString& /*variable*/, bool /*flag*/, const OdCmColor& /*color1*/, const OdCmColor& /*color2*/, const OdCmColor& /*color3*/, double /*angle*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetImageBackground(const QString& /*variable*/, const QString& /*file*/, const QString& /*mode*/, double /*a*/, double /*b*/, double /*c*/, double /*d*/) { return {}; }
QString CZtConverterKVAPIObjectJavaScript::WriteSetNamedProperty(const QString& /*word*/, const QString& /*value*/, bool /*isModel*/, const QString& /*sheet*/) { return {}; }
