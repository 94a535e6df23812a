// Reading property values that arrive in several shapes: plain, as a selection, or as an element of a collection.
#pragma once

#include "host/kernel/variant.h"
#include "objects/display_words.h"

// The text of a value: that of the selected element of a selection, of an element's value, else its own. Empty for a
// selection without a current element.
[[nodiscard]] inline QString TextOf(const CZtVariant& value)
{
    if (value.GetType() != CZtVariant::kCollection && value.GetType() != CZtVariant::kElement)
    {
        return value.GetString();
    }
    const CZtVariantCollectionElement* element = value.GetCollectionElement();
    return element != nullptr ? element->GetValue()->GetString().text() : QString();
}

// The number of a value: the tag of the selected element of a selection or of an element, else its own. 0 for a
// selection without a current element.
[[nodiscard]] inline std::int32_t TagOf(const CZtVariant& value)
{
    if (value.GetType() != CZtVariant::kCollection && value.GetType() != CZtVariant::kElement)
    {
        return value.GetInt32();
    }
    const CZtVariantCollectionElement* element = value.GetCollectionElement();
    return element != nullptr ? element->GetTag()->GetInt32() : 0;
}

// True when the text of a value is the word in the user's language.
[[nodiscard]] inline bool IsWord(const DisplayWords& words, const CZtVariant& value, const char* word,
                                 Qt::CaseSensitivity sensitivity = Qt::CaseSensitive)
{
    return words.Matches(DisplayWords::Context::PropertyValues, word, TextOf(value), sensitivity);
}

// A number as the API takes it, any other value as its text.
[[nodiscard]] inline QString NumberOrText(const CZtVariant& value)
{
    switch (value.GetType())
    {
    case CZtVariant::kInteger:
        return QString::number(value.GetInt32());
    case CZtVariant::kReal:
        return QString::number(value.GetDouble(), 'g', 15);
    default:
        return TextOf(value);
    }
}

// Whether a switch is on that arrives as a selection, whose first element says "Yes", or as an element with the word.
[[nodiscard]] inline bool IsSwitchedOn(const DisplayWords& words, const CZtVariant& value)
{
    if (const CZtVariantCollection* selection = value.GetCollection())
    {
        return selection->GetCurrentIndex() == 0;
    }
    return value.GetType() == CZtVariant::kElement && IsWord(words, value, "Yes", Qt::CaseInsensitive);
}
