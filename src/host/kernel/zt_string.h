// The application's wide text. A Qt text is always at hand, which is how it passes into templates.
#pragma once

#include <QtCore/QString>

class CZtString
{
public:
    CZtString() = default;
    CZtString(QString text) : text_(std::move(text)) {}
    CZtString(const char* narrow) : text_(QString::fromUtf8(narrow)) {}
    explicit CZtString(const char16_t* wide) : text_(QString::fromUtf16(wide)) {}

    // The text as Qt has it; valid as long as this object isn't changed.
    [[nodiscard]] const QString& text() const { return text_; }
    operator const QString&() const { return text_; }

    [[nodiscard]] bool isEmpty() const { return text_.isEmpty(); }

    // 0 for equal, below 0 when this text comes first, above 0 when the other does.
    [[nodiscard]] int compare(const CZtString& other) const { return text_.compare(other.text_); }
    [[nodiscard]] int compareNoCase(const CZtString& other) const
    {
        return text_.compare(other.text_, Qt::CaseInsensitive);
    }

    friend bool operator==(const CZtString& left, const CZtString& right) { return left.text_ == right.text_; }

private:
    QString text_;
};
