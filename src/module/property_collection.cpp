// The named values of a drawing object, collected while the application records.
#include "core/recording_start.h"
#include "host/db/blocks.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"
#include "host/kernel/services.h"
#include "module/module_object.h"

#include <QtCore/QCoreApplication>

namespace
{

// Appends named values to a collection. The names are copied: the collection may outlive the module.
class Collector
{
public:
    explicit Collector(CZtVariantCollection& collection) : elements_(collection.GetCollectionDataForWrite()) {}

    void Add(const QString& name, const CZtVariant& value)
    {
        elements_.emplace_back(CZtVariant(CZtString(name)), value);
    }
    void Add(const char* name, const CZtVariant& value) { Add(QString::fromLatin1(name), value); }
    void AddText(const QString& name, const QString& text) { Add(name, CZtVariant(CZtString(text))); }
    void AddText(const char* name, const QString& text) { AddText(QString::fromLatin1(name), text); }
    void AddReal(const QString& name, double value) { Add(name, CZtVariant(value, false)); }
    void AddReal(const char* name, double value) { AddReal(QString::fromLatin1(name), value); }
    void AddFlag(const char* name, bool flag) { Add(name, CZtVariant(std::int32_t{flag ? 1 : 0})); }
    void AddYesNo(const char* name, bool flag)
    {
        AddText(name, QCoreApplication::translate("property_values", flag ? "Yes" : "No"));
    }
    void AddWideYesNo(const char* name, bool flag) { AddText(name, QString::fromLatin1(flag ? "YES" : "NO")); }
    void AddList(const char* name, const std::vector<CZtVariant>& values)
    {
        CZtVariantCollection list;
        for (const CZtVariant& value : values)
        {
            list.GetCollectionDataForWrite().emplace_back(CZtVariant::kNull, value);
        }
        Add(name, CZtVariant(std::move(list)));
    }

private:
    std::vector<CZtVariantCollectionElement>& elements_;
};

void CollectAlignedDimension(const OdDbAlignedDimension& dimension, Collector& values)
{
    values.Add("xLine1Point", dimension.xLine1Point());
    values.Add("xLine2Point", dimension.xLine2Point());
    values.Add("dimLinePoint", dimension.dimLinePoint());
}

void CollectTwoLineDimension(const OdDb2LineAngularDimension& dimension, Collector& values)
{
    values.Add("xLine1Start", dimension.xLine1Start());
    values.Add("xLine1End", dimension.xLine1End());
    values.Add("xLine2Start", dimension.xLine2Start());
    values.Add("xLine2End", dimension.xLine2End());
    values.Add("arcPoint", dimension.arcPoint());
}

void CollectThreePointDimension(const OdDb3PointAngularDimension& dimension, Collector& values)
{
    values.Add("centerPoint", dimension.centerPoint());
    values.Add("xLine1Point", dimension.xLine1Point());
    values.Add("xLine2Point", dimension.xLine2Point());
    values.Add("arcPoint", dimension.arcPoint());
}

void CollectArcDimension(const OdDbArcDimension& dimension, Collector& values)
{
    values.Add("xLine1Point", dimension.xLine1Point());
    values.Add("xLine2Point", dimension.xLine2Point());
    values.Add("centerPoint", dimension.centerPoint());
    values.AddFlag("isPartial", dimension.isPartial());
    values.Add("arcPoint", dimension.arcPoint());
}

void CollectOrdinateDimension(const OdDbOrdinateDimension& dimension, Collector& values)
{
    values.Add("definingPoint", dimension.definingPoint());
    values.Add("leaderEndPoint", dimension.leaderEndPoint());
    values.AddFlag("isUsingXAxis", dimension.isUsingXAxis());
    values.Add("setZero", dimension.origin());
}

void CollectRotatedDimension(const OdDbRotatedDimension& dimension, Collector& values)
{
    values.Add("xLine1Point", dimension.xLine1Point());
    values.Add("xLine2Point", dimension.xLine2Point());
    values.Add("dimLinePoint", dimension.dimLinePoint());
    values.AddReal("rotation", dimension.rotation());
}

void CollectDiametricDimension(const OdDbDiametricDimension& dimension, Collector& values)
{
    values.Add("chordPoint", dimension.chordPoint());
}

void CollectRadialDimension(const OdDbRadialDimension& dimension, Collector& values)
{
    values.Add("chordPoint", dimension.chordPoint());
}

void CollectRichLine(const OdDbMline& line, Collector& values)
{
    std::vector<CZtVariant> vertices;
    vertices.reserve(static_cast<std::size_t>(line.numVertices()));
    for (int i = 0; i < line.numVertices(); ++i)
    {
        vertices.emplace_back(line.vertexAt(i));
    }
    values.AddList("vertices", vertices);
    values.AddFlag("closedMline", line.closedMline());
}

void CollectLeader(const OdDbLeader& leader, Collector& values)
{
    QString content;
    if (leader.annoType() == OdDbLeader::kMText)
    {
        const auto note = OdSmartPtr<OdDbMText>::cast(leader.annotationObjId().openObject());
        content = note ? note->contents() : QString();
    }
    values.AddText("content", content);
    values.AddReal("width", leader.annoWidth());
}

void CollectTolerance(const OdDbFcf& frame, Collector& values)
{
    constexpr int allLines = -1;
    values.AddText("Content", frame.getText(allLines));
}

void CollectTable(const OdDbTable& table, Collector& values)
{
    for (int row = 0; row < table.numRows(); ++row)
    {
        for (int column = 0; column < table.numColumns(); ++column)
        {
            values.AddText(QStringLiteral("Contents_%1_%2").arg(row).arg(column), table.textString(row, column));
            if (row == 0)
            {
                values.AddReal(QStringLiteral("ColumnWidth_%1").arg(column), table.columnWidth(column));
            }
        }
        values.AddReal(QStringLiteral("RowHeight_%1").arg(row), table.rowHeight(row));
    }
}

void CollectNote(const OdDbMText& note, Collector& values)
{
    values.AddWideYesNo("UseDrawingBackgroundColor", note.useBackgroundColorOn());
    values.Add("BackgroundFillColor", note.getBackgroundFillColor());
    values.AddReal("BackgroundBorderOffsetFactor", note.getBackgroundScaleFactor());
    values.AddReal("TextBoxHeight", note.actualHeight());
}

void CollectBlock(const OdDbBlockTableRecord& block, Collector& values)
{
    if (block.isLayout() || block.isFromExternalReference())
    {
        return;
    }
    std::vector<CZtVariant> handles;
    for (const OdDbObjectId& id : block.entityIds())
    {
        if (!id.isNull())
        {
            handles.emplace_back(CZtString(id.getHandle().ascii()));
        }
    }
    if (!handles.empty())
    {
        values.AddList("Objects", handles);
    }
    values.AddText("Description", block.comments().replace(QLatin1Char('\n'), QLatin1String("\\n")));
    values.AddYesNo("ApplyUniformScale", block.blockScaling() == 1);
    values.AddYesNo("Explodable", block.explodable());
    values.AddText("BlockUnit", QString::number(block.blockInsertUnits()));
}

void CollectLayout(const OdDbLayout& layout, Collector& values)
{
    const QString sheet = layout.getCurrentStyleSheet();
    if (sheet.isEmpty())
    {
        return;
    }
    values.AddText("PrintStyleTable", sheet);
    values.AddYesNo("Model_PrintStyleTable", layout.modelType());
    values.AddText("SheetName_PrintStyleTable", layout.getLayoutName());
}

// Collects when the object is exactly of the class; a class below it has no values of its own here.
template <class T, void (*Collect)(const T&, Collector&)>
bool CollectIf(OdRxObject* object, Collector& values)
{
    if (object->isA() != T::desc())
    {
        return false;
    }
    Collect(*OdSmartPtr<T>::cast(object), values);
    return true;
}

// The first collected object of a recording decides on which sheet it began.
void NoteRecordingStart()
{
    RecordingStart& start = RecordingStart::Current();
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (!start.RecordingStartSheet.isEmpty() || document == nullptr)
    {
        return;
    }
    const OdDbObjectPtr current = document->GetZtDatabase()->currentLayoutId().openObject();
    if (current && current->queryX(OdDbLayout::desc()) != nullptr)
    {
        const auto layout = OdSmartPtr<OdDbLayout>::cast(current);
        start.RecordingStartsInModel = layout->modelType();
        start.RecordingStartSheet = layout->getLayoutName();
    }
}

} // namespace

void CZtConverterKVAPIModule::CollectObjectProperties(OdRxObject* object, CZtVariantCollection* collection)
{
    NoteRecordingStart();
    Collector values(*collection);
    values.AddWideYesNo("Erased", OdSmartPtr<OdDbObject>::cast(object)->isErased());
    // Large radial dimensions have no values; they are no radial dimensions here.
    static_cast<void>(
        CollectIf<OdDbAlignedDimension, CollectAlignedDimension>(object, values) ||
        CollectIf<OdDb2LineAngularDimension, CollectTwoLineDimension>(object, values) ||
        CollectIf<OdDb3PointAngularDimension, CollectThreePointDimension>(object, values) ||
        CollectIf<OdDbArcDimension, CollectArcDimension>(object, values) ||
        CollectIf<OdDbOrdinateDimension, CollectOrdinateDimension>(object, values) ||
        CollectIf<OdDbRotatedDimension, CollectRotatedDimension>(object, values) ||
        CollectIf<OdDbDiametricDimension, CollectDiametricDimension>(object, values) ||
        CollectIf<OdDbRadialDimension, CollectRadialDimension>(object, values) ||
        CollectIf<OdDbMline, CollectRichLine>(object, values) || CollectIf<OdDbLeader, CollectLeader>(object, values) ||
        CollectIf<OdDbFcf, CollectTolerance>(object, values) || CollectIf<OdDbTable, CollectTable>(object, values) ||
        CollectIf<OdDbMText, CollectNote>(object, values) ||
        CollectIf<OdDbBlockTableRecord, CollectBlock>(object, values) ||
        CollectIf<OdDbLayout, CollectLayout>(object, values));
}
