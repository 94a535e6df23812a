// How an object of the journal becomes the name of a variable.
#pragma once

#include "core/macro_language.h"

#include <QtCore/QString>

// What happens to the mark of the API types without a smart pointer ("kvRegion_c*"). Some places keep it in the
// variable's name; that is the format's.
enum class PlainPointerMark
{
    Removed,
    Kept,
};

// The variable of an object: the type's name in lower case, in the C++ API without its pointer suffix, and the number.
// "kvLine_ptr" and 5 give "kvline5" in the C++ API, "Line" and 5 "line5" in the other languages.
[[nodiscard]] QString VariableName(const QString& typeName, std::int32_t number, PlainPointerMark mark);

// The same without the number. The reference holds until the next call.
[[nodiscard]] QString VariableStem(const QString& typeName, PlainPointerMark mark);
