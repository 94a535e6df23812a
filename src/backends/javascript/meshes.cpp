// JavaScript texts of meshes, faces and filled shapes; the logic stands in objects/meshes.cpp.
#include "backends/javascript/object.h"
#include "backends/text/coordinate_list.h"

QString CZtConverterKVAPIObjectJavaScript::WriteInsertSolid(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %4 = mSkMgr.InsertSolid(polyPoints%3);%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %4 = mSkMgr.InsertTrace(polyPoints%3);%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertFace(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                           bool edge1, bool edge2, bool edge3, bool edge4)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("facePoints", number, points);
    text += Statement("%1 var %8 = mSkMgr.InsertFace(%2%1 facePoints%3,%2%1 %4,%2%1 %5,%2%1 %6,%7);%2", number,
                      FlagWord(edge1), FlagWord(edge2), FlagWord(edge3), FlagWord(edge4), variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPolygonMesh(const QString& variable,
                                                                  const OdArray<OdGePoint3d>& points, std::int32_t m,
                                                                  std::int32_t n)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %6 = mSkMgr.InsertPolygonMesh(%4, %5, polyPoints%3);%2", number, m, n, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPolyFaceMesh(const QString& variable, std::int32_t vertexCount,
                                                                   const OdArray<OdGePoint3d>& points,
                                                                   const OdArray<std::int32_t>& faceCounts,
                                                                   const OdArray<std::int32_t>& faceVertices)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    // The count of a single face makes an array of that length; the format's.
    text += Line("%1var FaceVerticesCountLongArray%2 = new Array(%3);\n", number, kv::IntegerList(faceCounts));
    text += kv::LineEnd();
    text += Line("%1var FaceVerticesLongArray%2 = new Array(%3);\n", number, kv::IntegerList(faceVertices));
    text += kv::LineEnd();
    text += Statement(
        "%1var %5 = mSkMgr.InsertPolyFaceMesh(%4, polyPoints%3, FaceVerticesCountLongArray%3, FaceVerticesLongArray%3);%2",
        number, vertexCount, variable);
    return text;
}
