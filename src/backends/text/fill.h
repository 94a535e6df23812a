// Fills templates with values: the one way in which macro text is made.
//
// The result is always that of a chain of single-value QString::arg calls, one for each value in order: each value goes
// to the lowest-numbered marker that is left, everywhere that marker stands, two digits read as one number. So a user's
// text that holds a marker is filled by the values that follow it; one arg call with several values would not do that.
// A point counts as its coordinates, one value each.
//
// Single thread: parsed templates are kept in one table of the process without a lock.
#pragma once

#include "backends/text/fill_value.h"
#include "backends/text/template.h"

#include <QString>
#include <span>
#include <type_traits>

namespace kv
{
namespace detail
{

/// Appends the template whose literal is `literal`, filled; parses it the first time that its address is seen.
void FillLiteral(QString& out, std::string_view literal, std::span<const FillValue> values);

/// Appends a template that is known at run time only, parsed at each call; otherwise as FillLiteral, and with the same
/// choice between a single pass and the chain. Any number of values, as for FillChain.
void FillRunTime(QString& out, const QString& text, std::span<const FillValue> values);

/// The chain of QString::arg calls.
[[nodiscard]] QString FillByChain(QString text, std::span<const FillValue> values);

/// Brings the values to their final form and hands them to `use` as a span.
template <class Use, Fillable... V>
decltype(auto) WithValues(Use use, const V&... values)
{
    constexpr std::size_t count = (0 + ... + markersFilled<V>);
    if constexpr (count == 0)
    {
        return use(std::span<const FillValue>());
    }
    else
    {
        FillValue forms[count];
        FillValue* next = forms;
        (SetValues(next, values), ...);
        return use(std::span<const FillValue>(forms));
    }
}

} // namespace detail

/// The line end of every generated text, a single line feed.
[[nodiscard]] const QString& LineEnd();

/// Appends the filled template to `out`; a value may be `out` itself.
/// The template is a string literal and is checked by the compiler, see Template. Throws std::length_error if the text
/// doesn't fit a QString.
template <Fillable... V>
void FillInto(QString& out, std::type_identity_t<Template<V...>> text, const V&... values)
{
    detail::WithValues([&](std::span<const detail::FillValue> forms) { detail::FillLiteral(out, text.Text(), forms); },
                       values...);
}

/// The filled template as a new text; otherwise as FillInto.
template <Fillable... V>
[[nodiscard]] QString Fill(std::type_identity_t<Template<V...>> text, const V&... values)
{
    QString out;
    FillInto<V...>(out, text, values...);
    return out;
}

/// The plain chain of QString::arg calls, for templates that are made or half filled at run time, and for those that
/// need a lone percent sign. Markers beyond the values stay in the text. Values beyond the markers are dropped, for
/// each of which Qt prints its warning "Argument missing": give as many values as there are markers at that moment.
template <Fillable... V>
[[nodiscard]] QString FillChain(const QString& text, const V&... values)
{
    return detail::WithValues(
        [&](std::span<const detail::FillValue> forms) { return detail::FillByChain(text, forms); }, values...);
}

} // namespace kv
