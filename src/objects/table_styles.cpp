// Table styles: their creation, and what they say about each type of cell.
#include "host/db/symbols.h"
#include "objects/cell_types.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
constexpr int BorderLines = 6;

// The cell type of a border, counted from 1. The last line of the title goes to the header; the format's.
constexpr std::int32_t CellOfBorder(int counter)
{
    return counter >= 12 ? HeaderCell : counter < 7 ? DataCell : TitleCell;
}
} // namespace

QString CZtConverterKVAPIObject::CreateTableStyle(const Creation& creation)
{
    const auto style = Opened<OdDbTableStyle>(creation.handle);
    return WriteCreateTableStyle(creation.variable,
                                 TakeName(creation, "TableStyleName", style ? style->getName() : OdString()));
}

QString CZtConverterKVAPIObject::EachOf(const CZtVariant& list, int limit,
                                        const std::function<QString(int, const CZtVariant&)>& write)
{
    QString text;
    if (const CZtVariantCollection* collection = list.GetCollection())
    {
        int counter = 0;
        for (const CZtVariantCollectionElement& element : collection->GetCollectionDataForRead())
        {
            if (++counter > limit)
            {
                break;
            }
            text += write(counter, *element.GetValue());
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertTableStyle(const PropertyPass& pass)
{
    PropertyList& properties = pass.properties;
    const QString& variable = pass.variable;
    QString text;
    if (const CZtVariant name = properties.TakeProperty("TableStyleName"); !name.IsNull() && !pass.created)
    {
        text += WriteRenameStyle(variable, TextOf(name), false);
    }
    // The counter of the three values is the cell type.
    const auto cells = [&](const char* label, const auto& write)
    { text += EachOf(properties.TakeProperty(label), HeaderCell, write); };
    cells("Align",
          [&](int cell, const CZtVariant& value) { return WriteSetCellAlignment(variable, cell, TextOf(value)); });
    for (const char* word : {"backgroundColor", "Color"})
    {
        cells(word, [&](int cell, const CZtVariant& value)
              { return WriteSetCellColor(variable, QLatin1String(word), cell, value.GetColor()); });
    }
    cells("textHeight",
          [&](int cell, const CZtVariant& value) { return WriteSetCellTextHeight(variable, cell, value.GetDouble()); });
    cells("textStyle",
          [&](int cell, const CZtVariant& value) { return WriteSetCellTextStyle(variable, cell, TextOf(value)); });
    for (const char* word : {"horzCellMargin", "vertCellMargin"})
    {
        cells(word, [&](int cell, const CZtVariant& value)
              { return WriteSetCellMargin(variable, QLatin1String(word), cell, value.GetDouble()); });
    }
    if (const CZtVariant direction = properties.TakeProperty("Direction"); !direction.IsNull())
    {
        text += SetTableDirection(variable, TextOf(direction), true);
    }
    const auto borders = [&](const char* label, const auto& write)
    {
        text += EachOf(properties.TakeProperty(label), BorderLines * HeaderCell,
                       [&](int counter, const CZtVariant& value)
                       { return write(CellOfBorder(counter), (counter - 1) % BorderLines + 1, value); });
    };
    borders("gridColor", [&](std::int32_t cell, std::int32_t line, const CZtVariant& value)
            { return WriteSetBordersColor(variable, cell, line, value.GetColor()); });
    borders("gridLineWeight", [&](std::int32_t cell, std::int32_t line, const CZtVariant& value)
            { return WriteSetBordersLineWeight(variable, cell, line, value.GetInt32()); });
    return text;
}
