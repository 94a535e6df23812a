// C++ API texts of meshes, faces and filled shapes; the logic stands in objects/meshes.cpp.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteInsertSolid(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertSolid( Coordinates%3, &%4 );%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertTrace( Coordinates%3, &%4 );%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertFace(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                    bool edge1, bool edge2, bool edge3, bool edge4)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1 kvSketchManager->InsertFace(%2%1 Coordinates%3,%2%1 %4,%2%1 %5,%2%1 %6 ,%7 ,&%8);%2", number,
                      FlagWord(edge1), FlagWord(edge2), FlagWord(edge3), FlagWord(edge4), variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertPolygonMesh(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                           std::int32_t m, std::int32_t n)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertPolygonMesh( %4, %5, Coordinates%3, &%6 );%2", number, m, n, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::IntegerLines(const char* list, std::int32_t number,
                                                 const OdArray<std::int32_t>& values) const
{
    QString text;
    for (const std::int32_t value : values)
    {
        text += Statement("%1%3%4.add(%5);%2", list, number, value);
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertPolyFaceMesh(const QString& variable, std::int32_t vertexCount,
                                                            const OdArray<OdGePoint3d>& points,
                                                            const OdArray<std::int32_t>& faceCounts,
                                                            const OdArray<std::int32_t>& faceVertices)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvDoubleArray Coordinates%3;%2"
        "%1kvLongArray FaceVerticesCountLongArray%3;%2"
        "%1kvLongArray FaceVerticesLongArray%3;%2%2"
        "%1Coordinates%3.clear();%2"
        "%1FaceVerticesCountLongArray%3.clear();%2"
        "%1FaceVerticesLongArray%3.clear();%2%2"
        "%4%2"
        "%5%2"
        "%6%2"
        "%1kvSketchManager->InsertPolyFaceMesh( %7, Coordinates%3, FaceVerticesCountLongArray%3, FaceVerticesLongArray%3, &%8 );%2",
        number, CoordinateLines(number, points), IntegerLines("FaceVerticesCountLongArray", number, faceCounts),
        IntegerLines("FaceVerticesLongArray", number, faceVertices), vertexCount, variable);
}
