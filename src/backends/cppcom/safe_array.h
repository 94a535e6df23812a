// Lists as C++ COM writes them: a VARIANT that holds a SAFEARRAY, from 0 on, of the exact size.
#pragma once

#include "backends/text/fill.h"

// Makes the statements for an array "name" + number. The names of its index and of its element hold the number alone:
// two arrays of one number stand in blocks of their own.
class SafeArrayText
{
public:
    enum class Kind
    {
        Integers,
        Entities,
    };

    SafeArrayText(Kind kind, const char* name, std::int32_t number) : kind_(kind), name_(name), number_(number) {}

    // The array with room for as many elements.
    [[nodiscard]] QString Declare(kv::Indent indent, int size) const;

    // The index and the element, ahead of the first element; then each element, an expression of the language.
    [[nodiscard]] QString Begin(kv::Indent indent) const;
    [[nodiscard]] QString Element(kv::Indent indent, const QString& value) const;

private:
    Kind kind_;
    const char* name_;
    std::int32_t number_;
};
