// C# texts of meshes, faces and filled shapes; the logic stands in objects/meshes.cpp. A number is taken in
// every language, though nothing is declared here.
#include "backends/csharp/object.h"
#include "backends/text/coordinate_list.h"

QString CZtConverterKVAPIObjectCSharp::WriteInsertSolid(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%4 = kvSketchManager.InsertSolid( new double[]{%3} );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%4 = kvSketchManager.InsertTrace( new double[]{%3} );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertFace(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                       bool edge1, bool edge2, bool edge3, bool edge4)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1 %8 = kvSketchManager.InsertFace(%2%1 new double[]{%3},%2%1 %4,%2%1 %5,%2%1 %6 ,%7);%2",
                     kv::CoordinateList<kv::FixedPoint>(points), FlagWord(edge1), FlagWord(edge2), FlagWord(edge3),
                     FlagWord(edge4), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertPolygonMesh(const QString& variable,
                                                              const OdArray<OdGePoint3d>& points, std::int32_t m,
                                                              std::int32_t n)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%6 = kvSketchManager.InsertPolygonMesh( %4, %5, new double[]{%3} );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), m, n, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertPolyFaceMesh(const QString& variable, std::int32_t vertexCount,
                                                               const OdArray<OdGePoint3d>& points,
                                                               const OdArray<std::int32_t>& faceCounts,
                                                               const OdArray<std::int32_t>& faceVertices)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement(
        "%1%7 = kvSketchManager.InsertPolyFaceMesh( %3, new double[]{%4}, new int[]{%5}, new int[]{%6} );%2",
        vertexCount, kv::CoordinateList<kv::FixedPoint>(points), kv::IntegerList(faceCounts),
        kv::IntegerList(faceVertices), variable);
}
