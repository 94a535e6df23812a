// VB.NET texts of meshes, faces and filled shapes; the logic stands in objects/meshes.cpp.
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIObjectVbNet::WriteInsertSolid(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%4 = kvSketchManager.InsertSolid( Coordinates%3 )%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%4 = kvSketchManager.InsertTrace( Coordinates%3 )%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertFace(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                      bool edge1, bool edge2, bool edge3, bool edge4)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1 %8 = kvSketchManager.InsertFace( _%2%1 Coordinates%3, _%2%1 %4, _%2%1 %5, _%2%1 %6 ,%7)%2",
                      number, FlagWord(edge1), FlagWord(edge2), FlagWord(edge3), FlagWord(edge4), variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertPolygonMesh(const QString& variable,
                                                             const OdArray<OdGePoint3d>& points, std::int32_t m,
                                                             std::int32_t n)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%6 = kvSketchManager.InsertPolygonMesh( %4, %5, Coordinates%3 )%2", number, m, n, variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertPolyFaceMesh(const QString& variable, std::int32_t vertexCount,
                                                              const OdArray<OdGePoint3d>& points,
                                                              const OdArray<std::int32_t>& faceCounts,
                                                              const OdArray<std::int32_t>& faceVertices)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim Coordinates%3(%4) As Double%2"
        "%1Dim FaceVerticesCountLongArray%3(%5) As Long%2"
        "%1Dim FaceVerticesLongArray%3(%6) As Long%2%2"
        "%7%2"
        "%8%2"
        "%9%2"
        "%1%11 = kvSketchManager.InsertPolyFaceMesh( %10, Coordinates%3, FaceVerticesCountLongArray%3, FaceVerticesLongArray%3 )%2",
        number, 3 * static_cast<int>(points.size()) - 1, static_cast<int>(faceCounts.size()) - 1,
        static_cast<int>(faceVertices.size()) - 1, WriteCoordinateElements3D(number, points),
        CountElements("FaceVerticesCountLongArray", number, faceCounts),
        CountElements("FaceVerticesLongArray", number, faceVertices), vertexCount, variable);
}
