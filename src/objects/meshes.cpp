// Meshes, faces, solids and traces.
#include "host/db/polylines.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

#include <limits>

QString CZtConverterKVAPIObject::CreateSolid(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    return WriteInsertSolid(variable, properties.TakePoints("Vertex", &consumed));
}

QString CZtConverterKVAPIObject::CreateTrace(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    return InsertTrace(variable, properties.TakePoints("Vertex", &consumed));
}

QString CZtConverterKVAPIObject::InsertTrace(const QString& variable, const OdArray<OdGePoint3d>& points)
{
    // A trace takes the thickness that new entities get at replay; the recorded one stays with it.
    QString text = WriteInsertTrace(variable, points);
    if (CZtDocument* document = ACTIVE_DOCUMENT())
    {
        text +=
            WriteSetDoubleProperty(variable, QStringLiteral("Thickness"), document->GetZtDatabase()->getThickness());
    }
    return text;
}

QString CZtConverterKVAPIObject::CreateFace(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    std::array<bool, 4> visible{};
    constexpr std::array names = {"Edge 1", "Edge 2", "Edge 3", "Edge 4"};
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        visible.at(i) = IsWord(words_, properties.TakeProperty(names.at(i), &consumed), "Visible", Qt::CaseInsensitive);
    }
    return WriteInsertFace(variable, points, visible[0], visible[1], visible[2], visible[3]);
}

QString CZtConverterKVAPIObject::CreatePolygonMesh(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    const std::int32_t m = properties.TakeProperty("M vertex count", &consumed).GetInt32();
    const std::int32_t n = properties.TakeProperty("N vertex count", &consumed).GetInt32();
    const auto mesh = Opened<OdDbPolygonMesh>(handle);
    return InsertPolygonMesh(variable, points, m, n, mesh && mesh->isMClosed(), mesh && mesh->isNClosed());
}

QString CZtConverterKVAPIObject::InsertPolygonMesh(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                   std::int32_t m, std::int32_t n, bool closedM, bool closedN)
{
    QString text = WriteInsertPolygonMesh(variable, points, m, n);
    if (closedM)
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("MClosed"), true);
    }
    if (closedN)
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("NClosed"), true);
    }
    return text;
}

QString CZtConverterKVAPIObject::CreatePolyFaceMesh(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    const auto mesh = Opened<OdDbPolyFaceMesh>(handle);
    return mesh ? InsertPolyFaceMesh(variable, points, *mesh) : QString();
}

QString CZtConverterKVAPIObject::InsertPolyFaceMesh(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                    const OdDbPolyFaceMesh& mesh)
{
    OdArray<std::int32_t> counts;
    OdArray<std::int32_t> vertices;
    for (const OdDbPolyFaceMesh::Face& face : mesh.faces())
    {
        // A fourth index of 0 makes a triangle.
        const std::size_t count = face[3] == 0 ? 3 : 4;
        counts.append(static_cast<std::int32_t>(count));
        for (std::size_t i = 0; i < count; ++i)
        {
            vertices.append(face.at(i));
        }
    }
    return WriteInsertPolyFaceMesh(variable, mesh.numVertices(), points, counts, vertices);
}

QString CZtConverterKVAPIObject::ConvertSolid(const PropertyPass& pass)
{
    return ChangeCorners(pass, std::numeric_limits<std::int32_t>::max() - 1);
}

QString CZtConverterKVAPIObject::ConvertTrace(const PropertyPass& pass)
{
    return ConvertSolid(pass);
}

QString CZtConverterKVAPIObject::ConvertFace(const PropertyPass& pass)
{
    QString text;
    for (const auto& [name, word] : {std::pair("Edge 1", "Edge1Visible"), std::pair("Edge 2", "Edge2Visible"),
                                     std::pair("Edge 3", "Edge3Visible"), std::pair("Edge 4", "Edge4Visible")})
    {
        text += ChangeWord(pass, name, word, "Visible");
    }
    text += ChangeCorners(pass, 3);
    return text;
}

QString CZtConverterKVAPIObject::ConvertPolygonMesh(const PropertyPass& pass)
{
    QString text = ConvertPolyFaceMesh(pass);
    text += ChangeSwitch(pass, "M closed", "MClosed");
    text += ChangeDouble(pass, "M density", "MDensity");
    text += ChangeDouble(pass, "N density", "NDensity");
    text += ChangeSwitch(pass, "N closed", "NClosed");
    text += ChangeEnum(pass, "Fit/Smooth", kv::EnumKind::PolygonMeshFitSmooth, "FitSmooth");
    return text;
}

QString CZtConverterKVAPIObject::ConvertPolyFaceMesh(const PropertyPass& pass)
{
    return ChangeVertices(pass, {"Vertex X", "Vertex Y", "Vertex Z"}, "GetVertexCoordinate", "SetVertexCoordinate");
}
