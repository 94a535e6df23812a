// VB.NET: arrays of entities, which the API takes wrapped.
#pragma once

#include "backends/text/basic_operations.h"

namespace kv
{
template <class Base>
class DispatchArrays : public Base
{
public:
    using Base::Base;

protected:
    [[nodiscard]] QString DeclareEntities(const char* name, std::int32_t number, int count) const override
    {
        return Base::Statement("%1Dim %3%4 As DispatchWrapper() = New DispatchWrapper( %5 ) {}%2", name, number,
                               count - 1);
    }

    [[nodiscard]] QString EntityElements(const char* name, std::int32_t number, const QStringList& names) const override
    {
        QString text;
        for (int i = 0; i < names.size(); ++i)
        {
            text += Base::Statement("%1%3%4( %5 ) = New DispatchWrapper( %6 )%2", name, number, i, names.at(i));
        }
        return text;
    }
};
} // namespace kv
