// Tables: their insertion, and changes of their rows, columns and cells.
#include "core/escape.h"
#include "host/db/blocks.h"
#include "objects/cell_types.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

#include <set>

namespace
{
// A field of a name "RowHeight_2" or "Contents_2_0"; 0 when the name is shorter.
int Field(const PropertyList::Numbered& item, std::size_t index)
{
    return index < item.fields.size() ? item.fields[index] : 0;
}
} // namespace

QString CZtConverterKVAPIObject::CreateTable(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const auto table = Opened<OdDbTable>(handle);
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const CZtVariant rows = properties.TakeProperty("Rows", &consumed);
    const CZtVariant columns = properties.TakeProperty("Columns", &consumed);
    TableState& state = tables_[variable];
    state.rows = !rows.IsNull() ? rows.GetInt32() : table ? table->numRows() : 0;
    state.columns = !columns.IsNull() ? columns.GetInt32() : table ? table->numColumns() : 0;
    state.height = properties.TakeDouble("Table height", 0.0, &consumed);
    state.width = properties.TakeDouble("Table width", 0.0, &consumed);
    const CZtVariant style = properties.TakeProperty("TableStyle", &consumed);
    const auto heights = properties.TakeSeries("RowHeight_", consumed);
    const auto widths = properties.TakeSeries("ColumnWidth_", consumed);
    const auto contents = properties.TakeSeries("Contents_", consumed);
    const auto firstOf = [](const std::vector<PropertyList::Numbered>& series)
    {
        const auto first = std::ranges::find_if(series, [](const auto& item) { return Field(item, 0) == 0; });
        return first != series.end() ? first->value.GetDouble() : 0.0;
    };

    // The journal doesn't tell whether the first row is a title: each row is one of data, filled cell by cell.
    constexpr bool hasTitle = false;
    QString text = WriteInsertTable(variable, position, state.rows, state.columns, firstOf(heights),
                                    hasTitle ? TitleCell : DataCell, firstOf(widths), hasTitle);
    if (!style.IsNull())
    {
        text += WriteSetTableStyle(variable, QStringLiteral("TableStyle"), FirstTextOf(style));
    }
    for (const auto& height : heights)
    {
        text += WriteSetRowHeight(variable, Field(height, 0), height.value.GetDouble());
    }
    for (const auto& width : widths)
    {
        text += WriteSetColumnWidth(variable, Field(width, 0), width.value.GetDouble());
    }
    for (const auto& cell : contents)
    {
        if (!TextOf(cell.value).isEmpty())
        {
            text += SetTableText(variable, cell);
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::SetTableText(const QString& variable, const PropertyList::Numbered& cell)
{
    return WriteSetTableText(variable, Field(cell, 0), Field(cell, 1), EscapeBackslashes(TextOf(cell.value)));
}

// New rows or columns, and what stands in them. The elements stay: sizes and contents are set once more behind.
QString CZtConverterKVAPIObject::AddTableLines(const PropertyPass& pass, bool areRows, std::int32_t first)
{
    std::set<int> added;
    std::int32_t next = first;
    QString text;
    for (const auto& size : pass.properties.Series(areRows ? "RowHeight_" : "ColumnWidth_"))
    {
        if (Field(size, 0) == next)
        {
            text += areRows ? WriteInsertRow(pass.variable, next, size.value.GetDouble())
                            : WriteInsertColumn(pass.variable, next, size.value.GetDouble());
            added.insert(next++);
        }
    }
    for (const auto& cell : pass.properties.Series("Contents"))
    {
        if (added.contains(Field(cell, areRows ? 0 : 1)) && !TextOf(cell.value).isEmpty())
        {
            text += SetTableText(pass.variable, cell);
        }
    }
    return text;
}

// One count changed. Whatever the difference, only the last row or column is removed.
QString CZtConverterKVAPIObject::ChangeTableCount(const PropertyPass& pass, const char* name, bool areRows,
                                                  std::int32_t& count)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    if (value.IsNull() || pass.created)
    {
        return {};
    }
    const std::int32_t changed = value.GetInt32();
    QString text;
    if (changed > count)
    {
        text = AddTableLines(pass, areRows, count);
    }
    else if (changed < count)
    {
        text = areRows ? WriteDeleteRow(pass.variable, count - 1) : WriteDeleteColumn(pass.variable, count - 1);
    }
    count = changed;
    return text;
}

// A size that changed while neither the count nor any single size did: the whole table was stretched.
QString CZtConverterKVAPIObject::ChangeTableSize(const PropertyPass& pass, const char* name, bool areSingleSizesHere,
                                                 bool areRows, double& size)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    if (value.IsNull() || pass.created)
    {
        return {};
    }
    const double old = size;
    size = value.GetDouble();
    return areSingleSizesHere || old == 0.0 ? QString() : WriteScaleRowsOrColumns(pass.variable, areRows, size / old);
}

QString CZtConverterKVAPIObject::ConvertTable(const PropertyPass& pass)
{
    PropertyList& properties = pass.properties;
    const QString& variable = pass.variable;
    QString text = ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    if (!pass.created)
    {
        TableState& state = tables_[variable];
        const bool hasRows = properties.Holds("Rows");
        const bool hasColumns = properties.Holds("Columns");
        text += ChangeTableCount(pass, "Rows", true, state.rows);
        text += ChangeTableCount(pass, "Columns", false, state.columns);

        const auto widths = properties.Series("ColumnWidth");
        for (const auto& width : widths)
        {
            text += WriteSetColumnWidth(variable, Field(width, 0), width.value.GetDouble());
        }
        const auto heights = properties.Series("RowHeight");
        for (const auto& height : heights)
        {
            text += WriteSetRowHeight(variable, Field(height, 0), height.value.GetDouble());
        }
        const bool hasSizes = !widths.empty() || !heights.empty();
        text += ChangeTableSize(pass, "Table height", hasRows || hasSizes, true, state.height);
        for (const auto& cell : properties.Series("Contents"))
        {
            text += SetTableText(variable, cell);
        }
        text += ChangeTableSize(pass, "Table width", hasColumns || hasSizes, false, state.width);
        if (const CZtVariant style = properties.TakeProperty("TableStyle"); !style.IsNull())
        {
            text += WriteSetTableStyle(variable, QStringLiteral("TableStyle"), FirstTextOf(style));
        }
    }
    if (const CZtVariant direction = properties.TakeProperty("Direction"); !direction.IsNull())
    {
        text += SetTableDirection(variable, FirstTextOf(direction), false);
    }
    return text;
}

// A style or a direction comes as a list, of which the first counts, or as an element.
QString CZtConverterKVAPIObject::FirstTextOf(const CZtVariant& value)
{
    if (const CZtVariantCollection* list = value.GetCollection())
    {
        const auto& elements = list->GetCollectionDataForRead();
        return elements.empty() ? QString() : QString(elements.front().GetValue()->GetString());
    }
    return TextOf(value);
}

QString CZtConverterKVAPIObject::SetTableDirection(const QString& variable, const QString& direction, bool isStyle)
{
    const CZtVariant word{CZtString(direction)};
    const bool isDown = IsWord(words_, word, "Down", Qt::CaseInsensitive);
    if (!isDown && !IsWord(words_, word, "Up", Qt::CaseInsensitive))
    {
        return {};
    }
    const char* constant = isStyle ? (isDown ? "kvTableHeaderOrientation_e.kvTableHeaderOrientation_Down"
                                             : "kvTableHeaderOrientation_e.kvTableHeaderOrientation_Up")
                                   : (isDown ? "kvTableDirection_e.kvTableDirection_TopToBottom"
                                             : "kvTableDirection_e.kvTableDirection_BottomToTop");
    return WriteSetTableDirection(variable, isStyle, QLatin1String(constant));
}
