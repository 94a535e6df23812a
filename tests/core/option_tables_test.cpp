// The option tables: how many rows of which kind, what a row may hold, and rows that invite a slip.
#include "core/option_tables.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

namespace
{
using kv::OptionKind;

struct Table
{
    const char* prefix;
    std::span<const kv::OptionGroup> groups;
    std::function<const kv::Option*(const QString&)> find;
    std::map<OptionKind, std::size_t> counts;
};

const std::map<OptionKind, QString> kindWords{
    {OptionKind::Bool, "Bool"},     {OptionKind::Double, "Double"},   {OptionKind::Int8, "Int8"},
    {OptionKind::Int16, "Int16"},   {OptionKind::Int32, "Int32"},     {OptionKind::Point2d, "Point2d"},
    {OptionKind::String, "String"}, {OptionKind::Point3d, "Point3d"},
};

class OptionTables : public testing::TestWithParam<Table>
{
};

TEST_P(OptionTables, HoldSoundRowsThatAreFound)
{
    const Table& table = GetParam();
    std::map<OptionKind, std::size_t> counts;
    std::set<QString> variables;
    std::set<QString> constants;
    for (const kv::OptionGroup& group : table.groups)
    {
        counts[group.kind] += group.rows.size();
        const QString prefix = table.prefix + kindWords.at(group.kind) + "_";
        for (const kv::OptionRow& row : group.rows)
        {
            const QString variable = row.variable;
            const QString constant = row.constant;
            EXPECT_TRUE(variables.insert(variable).second) << row.variable << " stands twice";
            EXPECT_TRUE(constants.insert(constant).second) << row.constant << " stands twice";
            EXPECT_EQ(variable, variable.toUpper()) << row.variable;
            EXPECT_TRUE(constant.startsWith(prefix)) << row.constant;

            const QString name = constant.mid(prefix.size());
            EXPECT_TRUE(name.startsWith("Get") || name.startsWith("Set") || name.startsWith("Enbl") ||
                        name.startsWith("Lgcy"))
                << row.constant;
            if (name.startsWith("Lgcy"))
            {
                EXPECT_EQ(name, "Lgcy" + variable) << row.constant;
            }

            const kv::Option* option = table.find(variable);
            ASSERT_NE(option, nullptr) << row.variable;
            EXPECT_EQ(option->constant, constant);
            EXPECT_EQ(option->kind, group.kind) << row.variable;
        }
    }
    EXPECT_EQ(counts, table.counts);
}

INSTANTIATE_TEST_SUITE_P(Both, OptionTables,
                         testing::Values(Table{"kvCommandOption",
                                               kv::CommandOptionGroups(),
                                               kv::FindCommandOptionRow,
                                               {{OptionKind::Bool, 44},
                                                {OptionKind::Int8, 4},
                                                {OptionKind::Int16, 80},
                                                {OptionKind::Double, 63},
                                                {OptionKind::String, 32},
                                                {OptionKind::Point2d, 6},
                                                {OptionKind::Point3d, 12}}},
                                         Table{"kvApplicationOption",
                                               kv::ApplicationOptionGroups(),
                                               kv::FindApplicationOptionRow,
                                               {{OptionKind::Bool, 11},
                                                {OptionKind::Int16, 47},
                                                {OptionKind::Int32, 6},
                                                {OptionKind::Double, 4},
                                                {OptionKind::String, 26}}}),
                         [](const auto& info) { return info.index == 0 ? "Command" : "Application"; });

QString CommandConstant(const char* variable)
{
    const kv::Option* option = kv::FindCommandOptionRow(variable);
    return option == nullptr ? QString() : option->constant;
}

QString ApplicationConstant(const char* variable)
{
    const kv::Option* option = kv::FindApplicationOptionRow(variable);
    return option == nullptr ? QString() : option->constant;
}

TEST(OptionRows, KeepTheNamesThatLookWrong)
{
    // The distances and the angle of a chamfer are crossed, and so are the corners of the extents.
    EXPECT_EQ(CommandConstant("CHAMFERD"), "kvCommandOptionDouble_SetChmfAng");
    EXPECT_EQ(CommandConstant("CHAMFERA"), "kvCommandOptionDouble_SetChmfDst1");
    EXPECT_EQ(CommandConstant("EXTMAX"), "kvCommandOptionPoint3d_GetXYLLFit");
    EXPECT_EQ(CommandConstant("EXTMIN"), "kvCommandOptionPoint3d_GetXYURFit");
    EXPECT_EQ(CommandConstant("SURFU"), "kvCommandOptionInt16_SetSrfMU");
    EXPECT_EQ(CommandConstant("SURFV"), "kvCommandOptionInt16_SetSrgNV");
    EXPECT_EQ(CommandConstant("DWGTITLED"), "kvCommandOptionBool_GetStatDWGNm");
    EXPECT_EQ(CommandConstant("DIMALTTZ"), "kvCommandOptionInt8_SetTDmDZroDsp");
    EXPECT_EQ(ApplicationConstant("_PKSER"), "kvApplicationOptionString_Lgcy_PKSER");
    EXPECT_EQ(ApplicationConstant("CMDLNTEXT"), "kvApplicationOptionString_SetPrmptTxt");
}

TEST(OptionRows, AreFoundByTheExactNameInTheirOwnTable)
{
    EXPECT_EQ(CommandConstant("DIMALT"), "kvCommandOptionBool_EnblDlDm");
    EXPECT_EQ(CommandConstant("dimalt"), QString());
    EXPECT_EQ(CommandConstant("DIMALT "), QString());
    EXPECT_EQ(CommandConstant(""), QString());
    EXPECT_EQ(CommandConstant("OSMODE"), QString());
    EXPECT_EQ(ApplicationConstant("OSMODE"), "kvApplicationOptionInt16_SetESnpMode");
    EXPECT_EQ(ApplicationConstant("LIMCHECK"), QString());
    EXPECT_EQ(CommandConstant("CHAMMODE"), "kvCommandOptionInt16_EnblChmfAng");
    EXPECT_EQ(ApplicationConstant("CHAMMODE"), "kvApplicationOptionInt16_EnblChmfAng");
}
} // namespace
