// What JavaScript leaves unsaid: blocks, comments and declarations, since a variable is declared where it is assigned;
// selections by method; vertices of two-dimensional polylines; and the reserved operations.
#include "backends/javascript/converter.h"
#include "backends/javascript/object.h"

QString CZtConverterKVAPIJavaScript::WriteBlockBegin()
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteBlockEnd()
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteComment(const QString& /*text*/)
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteDeclareVariable(const QString& /*typeName*/, const QString& /*stem*/,
                                                          std::int32_t /*number*/)
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/)
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteSetSelectionFilter(const SelectionMethod& /*method*/,
                                                             const QStringList& /*typeNames*/)
{
    return {};
}

#define OPERATION(result, name, parameters)                                                                            \
    result CZtConverterKVAPIJavaScript::name parameters                                                                \
    {                                                                                                                  \
        return {};                                                                                                     \
    }
#include "backends/javascript/reserved_operations.def"
#undef OPERATION

QString CZtConverterKVAPIObjectJavaScript::WriteObjectAddedComment(const QString& /*className*/)
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteObjectModifiedComment(const QString& /*className*/)
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteObjectModifiedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteDeclareBlockDefinition(const QString& /*variable*/)
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetVertex2D(const QString& /*variable*/, Axis /*axis*/,
                                                            double /*value*/, std::int32_t /*index*/)
{
    return {};
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCellTextStyle(const QString& /*variable*/, std::int32_t /*cellType*/,
                                                                 const QString& /*style*/)
{
    return {};
}
