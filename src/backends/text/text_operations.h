// What the text operations of all languages stand on: filled statements and fresh numbers.
#pragma once

#include "backends/text/fill.h"
#include "core/converter_impl.h"
#include "objects/object_converter.h"

namespace kv
{
// How a point goes into a template: in the general form on the journal side, in the fixed one on the object side.
struct GeneralForms
{
    template <class V>
    [[nodiscard]] static decltype(auto) Of(const V& value)
    {
        if constexpr (std::is_same_v<V, OdGePoint3d>)
        {
            return GeneralPoint{value};
        }
        else if constexpr (std::is_same_v<V, OdGePoint2d>)
        {
            return GeneralPoint2d{value};
        }
        else if constexpr (std::is_same_v<V, OdGeVector3d>)
        {
            return GeneralPoint{{value.x, value.y, value.z}};
        }
        else
        {
            return (value);
        }
    }
};

struct FixedForms
{
    template <class V>
    [[nodiscard]] static decltype(auto) Of(const V& value)
    {
        if constexpr (std::is_same_v<V, OdGePoint3d>)
        {
            return FixedPoint{value};
        }
        else if constexpr (std::is_same_v<V, OdGePoint2d>)
        {
            return FixedPoint2d{value};
        }
        else
        {
            return (value);
        }
    }
};

// A tree of text operations: Base is the logic of the tree, Forms the way its points are written.
template <class Base, class Forms>
class TextOperations : public Base
{
public:
    using Base::Base;

protected:
    template <class V>
    using FormOf = std::remove_cvref_t<decltype(Forms::Of(std::declval<const V&>()))>;

    // The filled template with the indent and the line end as its first two values.
    template <class... V>
    [[nodiscard]] QString Statement(std::type_identity_t<Template<Indent, QString, FormOf<V>...>> text,
                                    const V&... values) const
    {
        return Fill<Indent, QString, FormOf<V>...>(text, CurrentIndent(), LineEnd(), Forms::Of(values)...);
    }

    // The filled template with the indent as its first value.
    template <class... V>
    [[nodiscard]] QString Line(std::type_identity_t<Template<Indent, FormOf<V>...>> text, const V&... values) const
    {
        return Fill<Indent, FormOf<V>...>(text, CurrentIndent(), Forms::Of(values)...);
    }

    [[nodiscard]] Indent CurrentIndent() const { return {Base::Counters().IndentLevel}; }

    // A number that no local name of the command has had.
    [[nodiscard]] std::int32_t NextLocalNumber() { return ++Base::Counters().LocalNameSequence; }

    // The word for a flag on this side of the language.
    [[nodiscard]] virtual QString FlagWord(bool flag) const
    {
        return flag ? QStringLiteral("true") : QStringLiteral("false");
    }
};

using ConverterText = TextOperations<CZtConverterKVAPIImpl, GeneralForms>;
using ObjectText = TextOperations<CZtConverterKVAPIObject, FixedForms>;
} // namespace kv
