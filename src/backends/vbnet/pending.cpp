// Operations that this language does not write yet.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIVbNet::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetSelectionFilter(const SelectionMethod& /*method*/,
                                                        const QStringList& /*typeNames*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteAddEntitiesToGroup(const QStringList& /*names*/, const QString& /*group*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRemoveEntitiesFromGroup(const QStringList& /*names*/, const QString& /*group*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteEraseEntity(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteMirrorEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*firstPoint*/,
                                                    const OdGePoint3d& /*secondPoint*/, bool /*flag*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteStretchEntities(const EntityArray& /*entities*/,
                                                     const OdGePoint3d& /*startCorner*/,
                                                     const OdGePoint3d& /*endCorner*/,
                                                     const OdGeVector3d& /*displacement*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteCopyEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/,
                                                  bool /*first*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteMoveEntities(const EntityArray& /*entities*/, const OdGeVector3d& /*displacement*/,
                                                  bool /*first*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRotateEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/,
                                                    double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteScaleEntities(const EntityArray& /*entities*/, const OdGePoint3d& /*basePoint*/,
                                                   double /*factor*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteTrimEntities(const QStringList& /*cutting*/, const QStringList& /*removed*/,
                                                  const OdArray<OdGePoint3d>& /*points*/, const TrimSearch& /*search*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteExtendEntities(const QStringList& /*boundaries*/, const QStringList& /*extended*/,
                                                    const OdArray<OdGePoint3d>& /*points*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteFilletEntities(const QStringList& /*firstNames*/,
                                                    const OdGePoint3d& /*firstPoint*/,
                                                    const QStringList& /*secondNames*/,
                                                    const OdGePoint3d& /*secondPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteChamferEntities(const QStringList& /*firstNames*/,
                                                     const OdGePoint3d& /*firstPoint*/,
                                                     const QStringList& /*secondNames*/,
                                                     const OdGePoint3d& /*secondPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteFilletChamferOptions(const QString& /*polyline*/, bool /*isFillet*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteFitPolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteDecurvePolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSplinePolyline(const QStringList& /*names*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteJoinPolyline(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteJoinLine(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteJoinCircleArc(const QString& /*first*/, const QString& /*other*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteJoinEntity(const QString& /*first*/, const QString& /*second*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSplitPolyline(const QString& /*variable*/, std::int32_t /*index*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteAddVertexAfter(const QString& /*variable*/, std::int32_t /*index*/,
                                                    const OdGePoint3d& /*point*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetVertexCoordinate(const QString& /*variable*/, std::int32_t /*index*/,
                                                         const OdGePoint3d& /*point*/, bool /*is3D*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteStraightenPolyline(const QString& /*variable*/, std::int32_t /*first*/,
                                                        std::int32_t /*second*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetSegmentWidths(const QString& /*variable*/, std::int32_t /*segment*/,
                                                      double /*start*/, double /*end*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteDeleteVertex(const QString& /*variable*/, std::int32_t /*index*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteInsertPolyline2DBlock(const QString& /*variable*/,
                                                           const OdArray<OdGePoint2d>& /*points*/, bool /*closed*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRemoveClipBoundary(const QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetClipBoundary(const QString& /*variable*/,
                                                     const OdArray<OdGePoint2d>& /*points*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteActivateSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteActivateModel()
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRenameSheet(const QString& /*oldName*/, const QString& /*newName*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteCreateSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRemoveSheet(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteCopySheet(const QString& /*source*/, const QString& /*newName*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteCreateSheetByTemplate(const QString& /*fileName*/, const QString& /*second*/,
                                                           const QString& /*third*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRenameNamedView(const QString& /*view*/, const QString& /*newName*/,
                                                     bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetNamedViewClass(const QString& /*view*/, const QString& /*viewClass*/,
                                                       bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetNamedViewWindow(const QString& /*view*/, const OdGePoint3d& /*corner1*/,
                                                        const OdGePoint3d& /*corner2*/, bool /*byName*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteZoom(const QString& /*range*/, bool /*isWindow*/, const OdGePoint3d& /*corner1*/,
                                          const OdGePoint3d& /*corner2*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteActivateViewport(const QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteInsertPolygonalViewport(const QString& /*variable*/,
                                                             const OdArray<OdGePoint2d>& /*points*/,
                                                             const QString& /*sheet*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteInsertViewTiles(const QString& /*layout*/, bool /*flag*/,
                                                     const QStringList& /*tiles*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSaveCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRestoreCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteRemoveCCS(const QString& /*name*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WritePreviousCCS()
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteWorldCCS()
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteAlignCCSByView()
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteDefaultCCS(const QString& /*constant*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetCCSOrigin(const OdGePoint3d& /*point*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteAlignCCSZAxis(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*zPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteAlignCCSByEntity(const QString& /*variable*/, const OdGePoint3d& /*point*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteCreateCCSFromPoints(const OdGePoint3d& /*origin*/, const OdGePoint3d& /*xPoint*/,
                                                         const OdGePoint3d& /*yPoint*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteGetInterfaceFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteGetSystemFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteGetDrawingSupportFiles(QString& /*variable*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteStringArray(const QString& /*variable*/, const QString& /*property*/,
                                                 const QStringList& /*values*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteSetElementColor(const OdCmColor& /*color*/, std::int32_t /*element*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteInsertHatchByEntities(const QString& /*target*/, const QString& /*boundary*/,
                                                           const QString& /*pattern*/, double /*scale*/,
                                                           double /*angle*/, bool /*erase*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteGradientColors(const QString& /*hatch*/, const OdCmColor& /*color1*/,
                                                    const OdCmColor& /*color2*/, bool /*centered*/, double /*value*/)
{
    return {};
}
QString CZtConverterKVAPIVbNet::WriteInsertEmbeddedObject(const QString& /*target*/, const QString& /*path*/,
                                                          bool /*flag0*/, bool /*flag1*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetPairProperty(const QString& /*variable*/, const QString& /*setter*/,
                                                           std::int32_t /*index*/, double /*value*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetSegmentAngle(const QString& /*variable*/, std::int32_t /*index*/,
                                                           double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetAttributeValue(const QString& /*variable*/, const QString& /*word*/,
                                                             const QString& /*tag*/, const QString& /*value*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteInsertRegion(const QString& /*target*/, const QStringList& /*names*/,
                                                        std::int32_t /*counter*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteInsertHatchByBoundary(const QString& /*target*/,
                                                                 const OdArray<std::int32_t>& /*counts*/,
                                                                 const OdArray<OdGePoint2d>& /*points*/,
                                                                 const QString& /*pattern*/, double /*scale*/,
                                                                 double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteInsertHatchByInternalPoints(const QString& /*target*/,
                                                                       const OdArray<OdGePoint2d>& /*points*/,
                                                                       const QString& /*pattern*/, double /*scale*/,
                                                                       double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteHatchBoundaryEntities(const QString& /*target*/,
                                                                 const QStringList& /*names*/,
                                                                 const QString& /*pattern*/, double /*scale*/,
                                                                 double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteCreateNamedView(const QString& /*variable*/, const QString& /*name*/,
                                                           const QString& /*viewClass*/, const OdGePoint3d& /*corner1*/,
                                                           const OdGePoint3d& /*corner2*/, bool /*isSheet*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetSolidBackground(const QString& /*variable*/, const OdCmColor& /*color*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetGradientBackground(const QString& /*variable*/, bool /*flag*/,
                                                                 const OdCmColor& /*color1*/,
                                                                 const OdCmColor& /*color2*/,
                                                                 const OdCmColor& /*color3*/, double /*angle*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetImageBackground(const QString& /*variable*/, const QString& /*file*/,
                                                              const QString& /*mode*/, double /*a*/, double /*b*/,
                                                              double /*c*/, double /*d*/)
{
    return {};
}
QString CZtConverterKVAPIObjectVbNet::WriteSetNamedProperty(const QString& /*word*/, const QString& /*value*/,
                                                            bool /*isModel*/, const QString& /*sheet*/)
{
    return {};
}
