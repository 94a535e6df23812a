// Rows of the tables by which the settings of dimensions and of dimension styles are written.
#pragma once

#include "core/enum_kind.h"

// What the way to the option objects of the API begins at.
enum class DimensionRoot
{
    Dimension,  // a dimension: by its general dimension and that one's style
    Annotation, // a leader or a tolerance: by its style
    Style,      // a dimension style, whose option objects hang on itself
};

// An option object: the API's name of its type and the stem of the local that holds it. Without a type the settings are
// those of the general dimension itself.
struct DimensionOptions
{
    const char* typeName = nullptr;
    const char* stem = nullptr;
};

// How the value of a property becomes the value of a setting.
enum class DimensionForm
{
    Number,
    Text,
    ElementText,    // the text of the selected element
    Flag,           // a dimension's: the tag of the selected element is 1; a style's also "Yes" or a number but 0
    ReversedFlag,   // the tag of the selected element is 0
    Constant,       // of an enumeration, by the tag of the selected element or the number
    PlainConstant,  // the same, by the number alone
    ConstantByWord, // of an enumeration, by the display word
    Color,
    LineWeight,
    LineStyle,
};

// One property: its name in the journal, the API's word, and how the value is written.
struct DimensionSetting
{
    const char* label = nullptr;
    const char* word = nullptr;
    DimensionForm form = DimensionForm::Number;
    kv::EnumKind kind = kv::EnumKind::LineWeight;
};
