// Operations that this language does not write yet.
#include "backends/vba/converter.h"
#include "backends/vba/object.h"

QString CZtConverterKVAPIVba::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetSelectionFilter(const SelectionMethod& /*method*/,
                                                      const QStringList& /*typeNames*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteAddEntitiesToGroup(const QStringList& /*names*/, const QString& /*group*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRemoveEntitiesFromGroup(const QStringList& /*names*/, const QString& /*group*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteEraseEntity(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteMirrorEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*firstPoint*/,
                                                  const OdGePoint3d& /*secondPoint*/, bool /*flag*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteStretchEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*startCorner*/,
                                                   const OdGePoint3d& /*endCorner*/,
                                                   const OdGeVector3d& /*displacement*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteCopyEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/,
                                                bool /*first*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteMoveEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/,
                                                bool /*first*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRotateEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/,
                                                  double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteScaleEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/,
                                                 double /*factor*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteTrimEntities(const QStringList& /*cutting*/, const QStringList& /*removed*/,
                                                const OdArray<OdGePoint3d>& /*points*/, const TrimSearch& /*search*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteExtendEntities(const QStringList& /*boundaries*/, const QStringList& /*extended*/,
                                                  const OdArray<OdGePoint3d>& /*points*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteFilletEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/,
                                                  const QStringList& /*secondNames*/,
                                                  const OdGePoint3d& /*secondPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteChamferEntities(const QStringList& /*firstNames*/, const OdGePoint3d& /*firstPoint*/,
                                                   const QStringList& /*secondNames*/,
                                                   const OdGePoint3d& /*secondPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteFilletChamferOptions(const QString& /*polyline*/, bool /*isFillet*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteFitPolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteDecurvePolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSplinePolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteJoinPolyline(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteJoinLine(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteJoinCircleArc(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteJoinEntity(const QString& /*first*/, const QString& /*second*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSplitPolyline(const QString& /*variable*/, std::int32_t /*index*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteAddVertexAfter(const QString& /*variable*/, std::int32_t /*index*/,
                                                  const OdGePoint3d& /*point*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetVertexCoordinate(const QString& /*variable*/, std::int32_t /*index*/,
                                                       const OdGePoint3d& /*point*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteStraightenPolyline(const QString& /*variable*/, std::int32_t /*first*/,
                                                      std::int32_t /*second*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetSegmentWidths(const QString& /*variable*/, std::int32_t /*segment*/,
                                                    double /*start*/, double /*end*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteDeleteVertex(const QString& /*variable*/, std::int32_t /*index*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteInsertPolyline2DBlock(const QString& /*variable*/,
                                                         const OdArray<OdGePoint2d>& /*points*/, bool /*closed*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRemoveClipBoundary(const QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetClipBoundary(const QString& /*variable*/, const OdArray<OdGePoint2d>& /*points*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteActivateSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteActivateModel()
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRenameSheet(const QString& /*oldName*/, const QString& /*newName*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteCreateSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRemoveSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteCopySheet(const QString& /*source*/, const QString& /*newName*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteCreateSheetByTemplate(const QString& /*fileName*/, const QString& /*second*/,
                                                         const QString& /*third*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRenameNamedView(const QString& /*view*/, const QString& /*newName*/, bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetNamedViewClass(const QString& /*view*/, const QString& /*viewClass*/,
                                                     bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetNamedViewWindow(const QString& /*view*/, const OdGePoint3d& /*corner1*/,
                                                      const OdGePoint3d& /*corner2*/, bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteZoom(const QString& /*range*/, bool /*isWindow*/, const OdGePoint3d& /*corner1*/,
                                        const OdGePoint3d& /*corner2*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteActivateViewport(const QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteInsertPolygonalViewport(const QString& /*variable*/,
                                                           const OdArray<OdGePoint2d>& /*points*/,
                                                           const QString& /*sheet*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteInsertViewTiles(const QString& /*layout*/, bool /*flag*/,
                                                   const QStringList& /*tiles*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSaveCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRestoreCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteRemoveCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WritePreviousCCS()
{
    return {};
}
QString CZtConverterKVAPIVba::WriteWorldCCS()
{
    return {};
}
QString CZtConverterKVAPIVba::WriteAlignCCSByView()
{
    return {};
}
QString CZtConverterKVAPIVba::WriteDefaultCCS(const QString& /*constant*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetCCSOrigin(const OdGePoint3d& /*point*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteAlignCCSZAxis(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*zPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteAlignCCSByEntity(const QString& /*variable*/, const OdGePoint3d& /*point*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteCreateCCSFromPoints(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*xPoint*/,
                                                       const OdGePoint3d& /*yPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteGetInterfaceFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteGetSystemFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteGetDrawingSupportFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteStringArray(const QString& /*variable*/, const QString& /*property*/,
                                               const QStringList& /*values*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteSetElementColor(const OdCmColor& /*color*/, std::int32_t /*element*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteInsertHatchByEntities(const QString& /*target*/, const QString& /*boundary*/,
                                                         const QString& /*pattern*/, double /*scale*/, double /*angle*/,
                                                         bool /*erase*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteGradientColors(const QString& /*hatch*/, const OdCmColor& /*color1*/,
                                                  const OdCmColor& /*color2*/, bool /*centered*/, double /*value*/)
{
    return {};
}
QString CZtConverterKVAPIVba::WriteInsertEmbeddedObject(const QString& /*target*/, const QString& /*path*/,
                                                        bool /*flag0*/, bool /*flag1*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetPairProperty(const QString& /*variable*/, const QString& /*setter*/,
                                                         std::int32_t /*index*/, double /*value*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetSegmentAngle(const QString& /*variable*/, std::int32_t /*index*/,
                                                         double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetAttributeValue(const QString& /*variable*/, const QString& /*word*/,
                                                           const QString& /*tag*/, const QString& /*value*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteInsertRegion(const QString& /*target*/, const QStringList& /*names*/,
                                                      std::int32_t /*counter*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteInsertHatchByBoundary(const QString& /*target*/,
                                                               const OdArray<std::int32_t>& /*counts*/,
                                                               const OdArray<OdGePoint2d>& /*points*/,
                                                               const QString& /*pattern*/, double /*scale*/,
                                                               double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteInsertHatchByInternalPoints(const QString& /*target*/,
                                                                     const OdArray<OdGePoint2d>& /*points*/,
                                                                     const QString& /*pattern*/, double /*scale*/,
                                                                     double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteHatchBoundaryEntities(const QString& /*target*/, const QStringList& /*names*/,
                                                               const QString& /*pattern*/, double /*scale*/,
                                                               double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteCreateNamedView(const QString& /*variable*/, const QString& /*name*/,
                                                         const QString& /*viewClass*/, const OdGePoint3d& /*corner1*/,
                                                         const OdGePoint3d& /*corner2*/, bool /*isSheet*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetSolidBackground(const QString& /*variable*/, const OdCmColor& /*color*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetGradientBackground(const QString& /*variable*/, bool /*flag*/,
                                                               const OdCmColor& /*color1*/, const OdCmColor& /*color2*/,
                                                               const OdCmColor& /*color3*/, double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetImageBackground(const QString& /*variable*/, const QString& /*file*/,
                                                            const QString& /*mode*/, double /*a*/, double /*b*/,
                                                            double /*c*/, double /*d*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVba::WriteSetNamedProperty(const QString& /*word*/, const QString& /*value*/,
                                                          bool /*isModel*/, const QString& /*sheet*/)
{
    return {};
}
