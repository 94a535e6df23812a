// Enumeration constants of the automation API in the form that a language writes.
#pragma once

#include "core/enum_kind.h"

#include <QString>

namespace kv
{
/// How a language writes a constant.
enum class EnumForm
{
    Bare,      ///< kvX_Name
    Qualified, ///< kvX_e.kvX_Name
    Morvane,   ///< Morvane.kvX_e.kvX_Name
};

/// Gives the constant for a number of the host; line weights are in hundredths of a millimetre. A number without a row
/// gives the default of the enumeration. Empty when the kind isn't told by a number.
[[nodiscard]] QString EnumConstant(EnumForm form, EnumKind kind, int number);

/// Gives the constant for a display word, which is compared with the words as the installed translators give them at
/// this moment; letter case counts. A word without a row gives the default of the enumeration. Empty when the kind
/// isn't told by a word.
[[nodiscard]] QString EnumConstant(EnumForm form, EnumKind kind, const QString& displayWord);

/// Gives the constant for a flag. Empty when the kind isn't told by a flag: only
/// EnumKind::DualDimensionInsertPlacement is.
[[nodiscard]] QString EnumConstantOfFlag(EnumForm form, EnumKind kind, bool flag);

/// Gives the constant for the line weight of an entity or layer, in hundredths of a millimetre. It differs from
/// EnumKind::LineWeight in the default, which is the host's default weight and not the weight 0.
[[nodiscard]] QString EntityLineWeight(EnumForm form, int hundredths);

/// Gives a qualified constant "kvX_e.kvX_Name" in another form.
[[nodiscard]] QString FormOfConstant(EnumForm form, const QString& qualified);
} // namespace kv
