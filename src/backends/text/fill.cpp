// Fills templates: in a single pass where that gives the text of the chain of QString::arg calls, else by the chain.
#include "backends/text/fill.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace kv
{
namespace
{

using detail::FillValue;
using detail::quickLength;

// A stretch of plain text and the marker behind it.
struct Piece
{
    int length;
    int rank; // of the marker's number among those of the template: the index of its value
};

// A template taken apart.
class ParsedTemplate
{
public:
    explicit ParsedTemplate(std::u16string_view text);

    // Whether a single pass over this template gives the chain's text with these values.
    [[nodiscard]] bool FillsInOnePass(std::span<const FillValue> values) const;
    void AppendFilled(QString& out, std::span<const FillValue> values) const;

private:
    bool plain_ = true; // ASCII only, and each percent sign begins a marker
    std::vector<Piece> pieces_;
    int tail_ = 0;                 // length of the plain text behind the last marker
    std::u16string plainText_;     // all stretches, and room to read on behind them
    std::vector<int> occurrences_; // by rank
    std::vector<int> exposed_;     // ranks that stand right behind a higher-numbered marker of one digit
};

ParsedTemplate::ParsedTemplate(std::u16string_view text)
    : plain_(std::ranges::all_of(text, [](char16_t c) { return c < 0x80; }))
{
    std::vector<detail::Marker> markers;
    std::array<int, 100> ranks{};
    for (auto marker = detail::NextMarker(text, 0); marker; marker = detail::NextMarker(text, marker->end))
    {
        plain_ = plain_ && marker->number >= 0;
        if (!plain_)
            return;
        markers.push_back(*marker);
        ranks[static_cast<std::size_t>(marker->number)] = 1;
    }
    int count = 0;
    for (int& rank : ranks)
        rank = rank != 0 ? count++ : -1;

    occurrences_.resize(static_cast<std::size_t>(count));
    std::size_t from = 0;
    for (const auto& marker : markers)
    {
        const int rank = ranks[static_cast<std::size_t>(marker.number)];
        const bool behindShortMarker = !pieces_.empty() && marker.begin == from && text[from - 2] == u'%';
        if (behindShortMarker && pieces_.back().rank > rank)
            exposed_.push_back(rank);
        pieces_.push_back({static_cast<int>(marker.begin - from), rank});
        ++occurrences_[static_cast<std::size_t>(rank)];
        plainText_.append(text, from, marker.begin - from);
        from = marker.end;
    }
    plainText_.append(text, from);
    tail_ = static_cast<int>(text.size() - from);
    plainText_.append(quickLength, u' ');
}

bool ParsedTemplate::FillsInOnePass(std::span<const FillValue> values) const
{
    if (!plain_ || values.size() < occurrences_.size())
        return false;
    // The values behind it would fill a marker that a value brings.
    if (!values.empty() && std::ranges::any_of(values.first(values.size() - 1), &FillValue::HoldsPercent))
        return false;
    // A digit that comes to stand behind a one-digit marker makes another marker of it.
    return std::ranges::none_of(exposed_,
                                [&](int rank)
                                {
                                    const QStringView text = values[static_cast<std::size_t>(rank)].Text();
                                    return text.empty() || text.front().digitValue() >= 0;
                                });
}

// Copies a text and returns the end of the copy. Up to quickLength units are read and written whatever the length.
inline char16_t* Copy(char16_t* out, const char16_t* text, int length)
{
    constexpr int half = quickLength / 2;
    std::memcpy(out, text, half * sizeof(char16_t));
    if (length > half)
    {
        std::memcpy(out + half, text + half, half * sizeof(char16_t));
        if (length > quickLength)
            std::memcpy(out + quickLength, text + quickLength,
                        static_cast<std::size_t>(length - quickLength) * sizeof(char16_t));
    }
    return out + length;
}

void ParsedTemplate::AppendFilled(QString& out, std::span<const FillValue> values) const
{
    const auto before = static_cast<std::size_t>(out.size());
    std::size_t size = before + plainText_.size(); // with quickLength units more than needed, for Copy
    for (std::size_t rank = 0; rank < occurrences_.size(); ++rank)
        size += static_cast<std::size_t>(occurrences_[rank]) * static_cast<std::size_t>(values[rank].Length());
    if (size > std::size_t{std::numeric_limits<int>::max() / 2})
        throw std::length_error("a generated text is too long");

    // A text grows by many of these: each growth takes more than it needs.
    if (out.capacity() < static_cast<int>(size))
        out.reserve(static_cast<int>(before != 0 ? size + size / 2 : size + 256));
    out.resize(static_cast<int>(size));
    char16_t* at = reinterpret_cast<char16_t*>(out.data()) + before;
    const char16_t* plain = plainText_.data();
    for (const Piece& piece : pieces_)
    {
        at = Copy(at, plain, piece.length);
        plain += piece.length;
        const FillValue& value = values[static_cast<std::size_t>(piece.rank)];
        at = Copy(at, value.Data(), value.Length());
    }
    Copy(at, plain, tail_);
    out.resize(static_cast<int>(size) - quickLength);
}

void Append(QString& out, const ParsedTemplate& parsed, std::span<const FillValue> values, auto&& wholeText)
{
    if (parsed.FillsInOnePass(values))
        parsed.AppendFilled(out, values);
    else
        out += detail::FillByChain(wholeText(), values);
}

// The parsed templates by the address of their literal: open addressing, at most half full.
class TemplateTable
{
public:
    const ParsedTemplate& Find(std::string_view literal)
    {
        for (std::size_t i = Slot(literal.data());; i = (i + 1) & (slots_.size() - 1))
        {
            if (slots_[i].literal == literal.data())
                return *slots_[i].parsed;
            if (!slots_[i].literal)
                return Add(literal);
        }
    }

private:
    struct Entry
    {
        const char* literal = nullptr;
        std::unique_ptr<const ParsedTemplate> parsed;
    };

    [[nodiscard]] std::size_t Slot(const char* literal) const
    {
        return (reinterpret_cast<std::uintptr_t>(literal) * 0x9E3779B97F4A7C15u >> 32) & (slots_.size() - 1);
    }

    void Place(Entry entry)
    {
        std::size_t i = Slot(entry.literal);
        while (slots_[i].literal)
            i = (i + 1) & (slots_.size() - 1);
        slots_[i] = std::move(entry);
    }

    const ParsedTemplate& Add(std::string_view literal)
    {
        if (++count_ * 2 > slots_.size())
        {
            auto old = std::exchange(slots_, std::vector<Entry>(slots_.size() * 2));
            for (Entry& entry : old)
                if (entry.literal)
                    Place(std::move(entry));
        }
        Entry entry{literal.data(), std::make_unique<ParsedTemplate>(std::u16string(literal.begin(), literal.end()))};
        const ParsedTemplate& parsed = *entry.parsed;
        Place(std::move(entry));
        return parsed;
    }

    std::vector<Entry> slots_ = std::vector<Entry>(1024);
    std::size_t count_ = 0;
};

} // namespace

void detail::FillLiteral(QString& out, std::string_view literal, std::span<const FillValue> values)
{
    static TemplateTable templates;
    Append(out, templates.Find(literal), values,
           [literal] { return QString::fromLatin1(literal.data(), static_cast<int>(literal.size())); });
}

void detail::FillRunTime(QString& out, const QString& text, std::span<const FillValue> values)
{
    const ParsedTemplate parsed(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
    Append(out, parsed, values, [&text] { return text; });
}

QString detail::FillByChain(QString text, std::span<const FillValue> values)
{
    for (const FillValue& value : values)
        text = value.GivenTo(text);
    return text;
}

const QString& LineEnd()
{
    static const QString lineEnd = QStringLiteral("\n");
    return lineEnd;
}

} // namespace kv
