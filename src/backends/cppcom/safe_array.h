// Lists as C++ COM writes them: a VARIANT that holds a SAFEARRAY, from 0 on, of the exact size.
#pragma once

#include "backends/text/fill.h"
#include "host/odrx/array.h"

#include <QStringList>

// Makes the statements for an array "name" + number. The names of its index and of its element hold the number alone:
// two arrays of one number stand in blocks of their own, and so does every array whose number isn't a local one.
class SafeArrayText
{
public:
    enum class Kind
    {
        Integers,
        Doubles,
        Entities,
    };

    SafeArrayText(Kind kind, const char* name, std::int32_t number)
        : kind_(kind), name_(name), number_(QString::number(number))
    {
    }

    // An array without a number.
    SafeArrayText(Kind kind, const char* name) : kind_(kind), name_(name) {}

    // The array with room for as many elements.
    [[nodiscard]] QString Declare(kv::Indent indent, int size) const;

    // The index and the element, ahead of the first element; then each element, an expression of the language.
    [[nodiscard]] QString Begin(kv::Indent indent) const;
    [[nodiscard]] QString Element(kv::Indent indent, const QString& value) const;

    // Begin and all elements; in a block of their own.
    [[nodiscard]] QString Elements(kv::Indent indent, const QStringList& values) const;
    [[nodiscard]] QString Block(kv::Indent indent, const QStringList& values) const;

private:
    Kind kind_;
    const char* name_;
    QString number_;
};

// The coordinates of points in their order, each as `form` writes it (kv::GeneralText or kv::FixedText), as the
// elements of an array of doubles.
using NumberForm = QString (*)(double);
[[nodiscard]] QStringList CoordinateTexts(const OdGePoint3d& point, NumberForm form);
[[nodiscard]] QStringList CoordinateTexts(const OdArray<OdGePoint3d>& points, NumberForm form);
[[nodiscard]] QStringList CoordinateTexts(const OdArray<OdGePoint2d>& points, NumberForm form);

// The integers as elements.
[[nodiscard]] QStringList IntegerTexts(const OdArray<std::int32_t>& values);
