// The run-time descriptions of the database classes, each defined once for both sides of the loader.
#include "host/db/classes.h"

#include "host/db/blocks.h"
#include "host/db/curves.h"
#include "host/db/database.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"

#include <QtCore/QHash>

ODRX_DEFINE_MEMBERS(OdDbDatabase, OdRxObject, "AcDbDatabase")

// Derived classes come behind their parents.
#define DATABASE_CLASSES(CLASS)                                                                                        \
    CLASS(OdDbObject, OdRxObject, "AcDbObject")                                                                        \
    CLASS(OdDbEntity, OdDbObject, "AcDbEntity")                                                                        \
    CLASS(OdDbCurve, OdDbEntity, "AcDbCurve")                                                                          \
    CLASS(OdDbLine, OdDbCurve, "AcDbLine")                                                                             \
    CLASS(OdDbCircle, OdDbCurve, "AcDbCircle")                                                                         \
    CLASS(OdDbArc, OdDbCurve, "AcDbArc")                                                                               \
    CLASS(OdDbEllipse, OdDbCurve, "AcDbEllipse")                                                                       \
    CLASS(OdDbPoint, OdDbEntity, "AcDbPoint")                                                                          \
    CLASS(OdDbRay, OdDbCurve, "AcDbRay")                                                                               \
    CLASS(OdDbXline, OdDbCurve, "AcDbXline")                                                                           \
    CLASS(OdDbPolyline, OdDbCurve, "AcDbPolyline")                                                                     \
    CLASS(OdDb2dPolyline, OdDbCurve, "AcDb2dPolyline")                                                                 \
    CLASS(OdDb3dPolyline, OdDbCurve, "AcDb3dPolyline")                                                                 \
    CLASS(OdDbSpline, OdDbCurve, "AcDbSpline")                                                                         \
    CLASS(OdDbMline, OdDbEntity, "AcDbMline")                                                                          \
    CLASS(OdDbPolygonMesh, OdDbEntity, "AcDbPolygonMesh")                                                              \
    CLASS(OdDbPolyFaceMesh, OdDbEntity, "AcDbPolyFaceMesh")                                                            \
    CLASS(OdDbFace, OdDbEntity, "AcDbFace")                                                                            \
    CLASS(OdDbSolid, OdDbEntity, "AcDbSolid")                                                                          \
    CLASS(OdDbTrace, OdDbEntity, "AcDbTrace")                                                                          \
    CLASS(OdDbText, OdDbEntity, "AcDbText")                                                                            \
    CLASS(OdDbAttributeDefinition, OdDbText, "AcDbAttributeDefinition")                                                \
    CLASS(OdDbMText, OdDbEntity, "AcDbMText")                                                                          \
    CLASS(OdDbLeader, OdDbCurve, "AcDbLeader")                                                                         \
    CLASS(OdDbFcf, OdDbEntity, "AcDbFcf")                                                                              \
    CLASS(OdDbBlockReference, OdDbEntity, "AcDbBlockReference")                                                        \
    CLASS(OdDbRasterImage, OdDbEntity, "AcDbRasterImage")                                                              \
    CLASS(OdDbShape, OdDbEntity, "AcDbShape")                                                                          \
    CLASS(OdDbTable, OdDbBlockReference, "AcDbTable")                                                                  \
    CLASS(OdDbViewport, OdDbEntity, "AcDbViewport")                                                                    \
    CLASS(OdDbHatch, OdDbEntity, "AcDbHatch")                                                                          \
    CLASS(OdDbRegion, OdDbEntity, "AcDbRegion")                                                                        \
    CLASS(OdDbOle2Frame, OdDbEntity, "AcDbOle2Frame")                                                                  \
    CLASS(OdDbDimension, OdDbEntity, "AcDbDimension")                                                                  \
    CLASS(OdDbAlignedDimension, OdDbDimension, "AcDbAlignedDimension")                                                 \
    CLASS(OdDbRotatedDimension, OdDbDimension, "AcDbRotatedDimension")                                                 \
    CLASS(OdDb2LineAngularDimension, OdDbDimension, "AcDb2LineAngularDimension")                                       \
    CLASS(OdDb3PointAngularDimension, OdDbDimension, "AcDb3PointAngularDimension")                                     \
    CLASS(OdDbArcDimension, OdDbDimension, "AcDbArcDimension")                                                         \
    CLASS(OdDbOrdinateDimension, OdDbDimension, "AcDbOrdinateDimension")                                               \
    CLASS(OdDbDiametricDimension, OdDbDimension, "AcDbDiametricDimension")                                             \
    CLASS(OdDbRadialDimension, OdDbDimension, "AcDbRadialDimension")                                                   \
    CLASS(OdDbRadialDimensionLarge, OdDbDimension, "AcDbRadialDimensionLarge")                                         \
    CLASS(OdDbSymbolTableRecord, OdDbObject, "AcDbSymbolTableRecord")                                                  \
    CLASS(OdDbLayerTableRecord, OdDbSymbolTableRecord, "AcDbLayerTableRecord")                                         \
    CLASS(OdDbLinetypeTableRecord, OdDbSymbolTableRecord, "AcDbLinetypeTableRecord")                                   \
    CLASS(OdDbDimStyleTableRecord, OdDbSymbolTableRecord, "AcDbDimStyleTableRecord")                                   \
    CLASS(OdDbTextStyleTableRecord, OdDbSymbolTableRecord, "AcDbTextStyleTableRecord")                                 \
    CLASS(OdDbViewTableRecord, OdDbSymbolTableRecord, "AcDbViewTableRecord")                                           \
    CLASS(OdDbViewportTableRecord, OdDbSymbolTableRecord, "AcDbViewportTableRecord")                                   \
    CLASS(OdDbBlockTableRecord, OdDbSymbolTableRecord, "AcDbBlockTableRecord")                                         \
    CLASS(OdDbMlineStyle, OdDbObject, "AcDbMlineStyle")                                                                \
    CLASS(OdDbTableStyle, OdDbObject, "AcDbTableStyle")                                                                \
    CLASS(OdDbGroup, OdDbObject, "AcDbGroup")                                                                          \
    CLASS(OdDbLayout, OdDbObject, "AcDbLayout")

DATABASE_CLASSES(ODRX_DEFINE_MEMBERS)

const OdRxClass* FindDatabaseClass(const QString& name)
{
    static const QHash<QString, const OdRxClass*> classes = []
    {
        QHash<QString, const OdRxClass*> byName;
#define ADD_CLASS(Class, Parent, databaseName) byName.insert(QStringLiteral(databaseName), Class::desc());
        DATABASE_CLASSES(ADD_CLASS)
#undef ADD_CLASS
        // Tables that the conversion knows by name only.
        static const OdRxClass layerTable(QStringLiteral("AcDbLayerTable"), OdDbObject::desc());
        static const OdRxClass viewTable(QStringLiteral("AcDbViewTable"), OdDbObject::desc());
        byName.insert(layerTable.name(), &layerTable);
        byName.insert(viewTable.name(), &viewTable);
        return byName;
    }();
    return classes.value(name, nullptr);
}

OdDbObjectPtr OdDbObjectId::openObject() const
{
    return isNull() ? OdDbObjectPtr() : database_->openObject(handle_);
}
