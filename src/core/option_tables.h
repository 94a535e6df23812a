// The options of the automation API that stand for system variables.
#pragma once

#include <QString>
#include <span>

namespace kv
{
/// The type of an option's value. It selects the getter of the recorded value and the operation that writes it.
enum class OptionKind : int
{
    Bool = 0,
    Double = 1,
    Int8 = 2,
    Int16 = 3,
    Int32 = 4,
    Point2d = 5,
    Point3d = 6,
    String = 7,
};

/// What stands for a system variable in the generated code.
struct Option
{
    OptionKind kind;
    QString constant; ///< the whole constant, such as "kvCommandOptionBool_EnblBnds"
};

/// A system variable and its constant, as the tables list them.
struct OptionRow
{
    const char* variable;
    const char* constant;
};

/// The rows of one kind.
struct OptionGroup
{
    OptionKind kind;
    std::span<const OptionRow> rows;
};

/// All command options, kind by kind, in the order of the API's list. A variable stands in one row only.
[[nodiscard]] std::span<const OptionGroup> CommandOptionGroups();

/// All application options, listed as the command options are.
[[nodiscard]] std::span<const OptionGroup> ApplicationOptionGroups();

/// Gives the command option of the system variable, or null when it has none. Letter case counts. The option lives as
/// long as the module.
[[nodiscard]] const Option* FindCommandOptionRow(const QString& variable);

/// Gives the application option of the system variable, or null when it has none. Letter case counts. The option lives
/// as long as the module.
[[nodiscard]] const Option* FindApplicationOptionRow(const QString& variable);
} // namespace kv
