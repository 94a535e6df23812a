// The decimal texts of numbers, equal to those of QString::arg in the C locale and several times as quick.
#pragma once

#include <QString>

namespace kv
{

/// Room that every Write... function below may use, in UTF-16 units.
inline constexpr int numberRoom = 32;

/// Writes an integer with base 10 at `out` (room for `numberRoom` units) and returns the end of the text.
char16_t* WriteInteger(char16_t* out, qlonglong value);
char16_t* WriteInteger(char16_t* out, qulonglong value);

/// Writes the text of QString::arg(value, 0, 'g', -1), six significant digits, at `out` (room for `numberRoom` units)
/// and returns its end; returns null, with nothing of use written, for a value outside of the range that is exact here:
/// beyond 2^63, below 2^-48 without being zero, infinite or not a number.
[[nodiscard]] char16_t* WriteGeneral(char16_t* out, double value);

/// Writes the text of QString::arg(value, 0, 'f', 14), fourteen decimals, at `out` (room for `numberRoom` units) and
/// returns its end; returns null, with nothing of use written, from 2^52 on, for infinities and what isn't a number.
[[nodiscard]] char16_t* WriteFixed(char16_t* out, double value);

/// The text of QString::arg(value, 0, 'g', -1) for every value.
[[nodiscard]] QString GeneralText(double value);

/// The text of QString::arg(value, 0, 'f', 14) for every value.
[[nodiscard]] QString FixedText(double value);

} // namespace kv
