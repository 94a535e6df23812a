// What commands change in the drawing in memory.
#pragma once

#include "embedded/drawing.h"
#include "host/kernel/drawing_editor.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace kv
{
// Knows the records by name and so lives no longer than a command runs. The drawing must outlive it.
class DrawingEditor final : public CZtDrawingEditor
{
public:
    explicit DrawingEditor(Drawing& drawing);

    OdDbObjectId getLinetypeContinuousId() override { return standardLinetype(QStringLiteral("Continuous")); }
    OdDbObjectId getLinetypeByLayerId() override { return standardLinetype(QStringLiteral("ByLayer")); }
    OdDbObjectId getLinetypeByBlockId() override { return standardLinetype(QStringLiteral("ByBlock")); }
    OdDbObjectId getLinetypeId(const OdString& name) override;
    OdDbObjectId currentLinetypeId() override;
    void setCurrentLinetype(const OdDbObjectId& linetype) override;
    void loadLinetype(const CZtLinetypeDefinition& definition) override;
    OdDbObjectId makeLayer(const OdString& name) override;
    OdDbObjectId appendClosedPolyline(const std::vector<OdGePoint3d>& vertices, const OdDbObjectId& layer) override;

    // An application is registered when any object bears its data.
    bool hasApplication(const OdString& name) override { return applications_.contains(name.toCaseFolded()); }
    void registerApplication(const OdString& name) override { applications_.insert(name.toCaseFolded()); }
    void setXData(const OdDbObjectId& object, const OdArray<OdResBufPtr>& chain) override;

private:
    using Names = QHash<QString, OdDbObjectId>; // by the name in one case

    void index(OdDbHandle handle);
    [[nodiscard]] OdDbObjectId standardLinetype(const QString& name);
    void appendToCurrentBlock(const OdDbObjectId& entity);

    Drawing& drawing_;
    Names linetypes_;
    Names layers_;
    QSet<QString> applications_;
};
} // namespace kv
