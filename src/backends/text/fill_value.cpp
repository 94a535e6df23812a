// The final texts of the values that fill templates.
#include "backends/text/fill_value.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kv::detail
{

void FillValue::SetWritten(Kind kind, const char16_t* end)
{
    kind_ = kind;
    data_ = room_;
    length_ = static_cast<int>(end - room_);
}

void FillValue::Keep(Kind kind, const QString& text)
{
    kind_ = kind;
    length_ = text.size();
    if (length_ <= quickLength)
    {
        std::memcpy(room_, text.constData(), static_cast<std::size_t>(length_) * sizeof(char16_t));
        data_ = room_;
        return;
    }
    kept_ = text;
    data_ = reinterpret_cast<const char16_t*>(kept_.constData());
}

void FillValue::SetInteger(qlonglong value)
{
    signed_ = value;
    SetWritten(Kind::Signed, WriteInteger(room_, value));
}

void FillValue::SetInteger(qulonglong value)
{
    unsigned_ = value;
    SetWritten(Kind::Unsigned, WriteInteger(room_, value));
}

void FillValue::Set(const General& value)
{
    real_ = value.value;
    if (const char16_t* end = WriteGeneral(room_, real_))
        SetWritten(Kind::General, end);
    else
        Keep(Kind::General, GeneralText(real_));
}

void FillValue::Set(const Fixed& value)
{
    real_ = value.value;
    if (const char16_t* end = WriteFixed(room_, real_))
        SetWritten(Kind::Fixed, end);
    else
        Keep(Kind::Fixed, FixedText(real_));
}

void FillValue::Set(const Indent& value)
{
    const int width = std::max(1, std::abs(4 * value.level));
    if (width > quickLength)
    {
        Keep(Kind::Blanks, QString(width, QLatin1Char(' ')));
        return;
    }
    std::fill_n(room_, quickLength, u' ');
    SetWritten(Kind::Blanks, room_ + width);
}

void FillValue::Set(const QString& value)
{
    Keep(Kind::Text, value);
}

bool FillValue::WidenAscii(const char* text, std::size_t length)
{
    if (length > quickLength || std::any_of(text, text + length, [](char c) { return (c & 0x80) != 0; }))
        return false;
    SetWritten(Kind::Text, std::copy_n(text, length, room_));
    return true;
}

void FillValue::Set(QLatin1String value)
{
    if (!WidenAscii(value.data(), static_cast<std::size_t>(value.size())))
        Keep(Kind::Text, value);
}

void FillValue::Set(const char* value)
{
    const std::size_t length = value ? std::strlen(value) : 0;
    if (!WidenAscii(value, length))
        Keep(Kind::Text, QString::fromUtf8(value));
}

bool FillValue::HoldsPercent() const
{
    if (kind_ != Kind::Text)
        return false;
    if (length_ > quickLength)
        return Text().contains(QLatin1Char('%'));
    return std::find(data_, data_ + length_, u'%') != data_ + length_; // quicker than a call for short texts
}

QString FillValue::GivenTo(const QString& text) const
{
    switch (kind_)
    {
    case Kind::Text:
    case Kind::Blanks:
        break;
    case Kind::Signed:
        return text.arg(signed_);
    case Kind::Unsigned:
        return text.arg(unsigned_);
    case Kind::General:
        return text.arg(real_, 0, 'g', -1);
    case Kind::Fixed:
        return text.arg(real_, 0, 'f', 14);
    }
    return text.arg(Text());
}

} // namespace kv::detail
