// Enumeration constants of the automation API in the form that a language writes.
#include "backends/text/enumerations.h"

#include "backends/text/enumeration_tables.h"

#include <algorithm>
#include <QCoreApplication>

namespace kv
{
namespace
{
const EnumTable& TableOf(EnumKind kind)
{
    return EnumTables()[static_cast<std::size_t>(kind)];
}

QString Formed(EnumForm form, const EnumTable& table, const char* constant)
{
    if (form == EnumForm::Bare)
    {
        return QLatin1String(constant);
    }
    const QString qualified = QLatin1String(table.enumeration) + QLatin1Char('.') + QLatin1String(constant);
    return FormOfConstant(form, qualified);
}

/// The constant of the first row that matches, or the fallback; empty when the table has rows of another sort.
template <typename Row, typename Matches>
QString Select(EnumForm form, const EnumTable& table, const char* fallback, Matches matches)
{
    const auto* rows = std::get_if<std::span<const Row>>(&table.rows);
    if (rows == nullptr)
    {
        return {};
    }
    const auto found = std::find_if(rows->begin(), rows->end(), matches);
    return Formed(form, table, found == rows->end() ? fallback : found->constant);
}

QString SelectByNumber(EnumForm form, const EnumTable& table, const char* fallback, int number)
{
    return Select<NumberRow>(form, table, fallback, [number](const NumberRow& row) { return row.number == number; });
}
} // namespace

QString EnumConstant(EnumForm form, EnumKind kind, int number)
{
    const EnumTable& table = TableOf(kind);
    return SelectByNumber(form, table, table.fallback, number);
}

QString EnumConstant(EnumForm form, EnumKind kind, const QString& displayWord)
{
    const EnumTable& table = TableOf(kind);
    return Select<WordRow>(form, table, table.fallback,
                           [&](const WordRow& row)
                           { return QCoreApplication::translate(table.context, row.key) == displayWord; });
}

QString EnumConstantOfFlag(EnumForm form, EnumKind kind, bool flag)
{
    const EnumTable& table = TableOf(kind);
    return Select<FlagRow>(form, table, table.fallback, [flag](const FlagRow& row) { return row.flag == flag; });
}

QString EntityLineWeight(EnumForm form, int hundredths)
{
    return SelectByNumber(form, TableOf(EnumKind::LineWeight), "kvLnWt_ByLwDefault", hundredths);
}

QString FormOfConstant(EnumForm form, const QString& qualified)
{
    switch (form)
    {
    case EnumForm::Bare:
        return qualified.mid(qualified.indexOf(QLatin1Char('.')) + 1);
    case EnumForm::Qualified:
        return qualified;
    case EnumForm::Morvane:
        return QLatin1String("Morvane.") + qualified;
    }
    return qualified;
}
} // namespace kv
