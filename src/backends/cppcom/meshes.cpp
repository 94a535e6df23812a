// C++ COM texts of meshes, faces and filled shapes; the logic stands in objects/meshes.cpp.
#include "backends/cppcom/object.h"

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertSolid(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%4 = kvSketchManager->InsertSolid( variant%3 );%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%4 = kvSketchManager->InsertTrace( variant%3 );%2", number, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertFace(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                       bool edge1, bool edge2, bool edge3, bool edge4)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1 %8 = kvSketchManager->InsertFace(%2%1 variant%3,%2%1 %4,%2%1 %5,%2%1 %6 ,%7);%2", number,
                      FlagWord(edge1), FlagWord(edge2), FlagWord(edge3), FlagWord(edge4), variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertPolygonMesh(const QString& variable,
                                                              const OdArray<OdGePoint3d>& points, std::int32_t m,
                                                              std::int32_t n)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%6 = kvSketchManager->InsertPolygonMesh( %4, %5, variant%3 );%2", number, m, n, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertPolyFaceMesh(const QString& variable, std::int32_t vertexCount,
                                                               const OdArray<OdGePoint3d>& points,
                                                               const OdArray<std::int32_t>& faceCounts,
                                                               const OdArray<std::int32_t>& faceVertices)
{
    // A number for each list: the names of index and element hold the number alone.
    const std::int32_t number = NextLocalNumber();
    const std::int32_t countNumber = NextLocalNumber();
    const std::int32_t vertexNumber = NextLocalNumber();
    const SafeArrayText coordinates(SafeArrayText::Kind::Doubles, "variant", number);
    const SafeArrayText counts(SafeArrayText::Kind::Integers, "FaceVerticesCountLongArray", countNumber);
    const SafeArrayText vertices(SafeArrayText::Kind::Integers, "FaceVerticesLongArray", vertexNumber);
    const QStringList values = CoordinateTexts(points, kv::FixedText);
    QString text = coordinates.Declare(CurrentIndent(), values.size());
    text += counts.Declare(CurrentIndent(), static_cast<int>(faceCounts.size()));
    text += vertices.Declare(CurrentIndent(), static_cast<int>(faceVertices.size()));
    text += kv::LineEnd();
    text += coordinates.Elements(CurrentIndent(), values);
    text += kv::LineEnd();
    text += counts.Elements(CurrentIndent(), IntegerTexts(faceCounts));
    text += kv::LineEnd();
    text += vertices.Elements(CurrentIndent(), IntegerTexts(faceVertices));
    text += kv::LineEnd();
    text += Statement(
        "%1%7 = kvSketchManager->InsertPolyFaceMesh( %6, variant%3, FaceVerticesCountLongArray%4, FaceVerticesLongArray%5 );%2",
        number, countNumber, vertexNumber, vertexCount, variable);
    return text;
}
