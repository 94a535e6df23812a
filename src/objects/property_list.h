// The properties of one event, as the conversion uses them up.
#pragma once

#include "host/kernel/journal_events.h"
#include "host/odrx/array.h"
#include "objects/display_words.h"

#include <QtCore/QVarLengthArray>

#include <cstring>

// Elements of an event. Most events have few, which then need no memory of their own.
using PropertyElements = QVarLengthArray<const CZtPropertyElement*, 16>;

// The elements that a pass has taken, in the order of taking.
using ConsumedProperties = PropertyElements;

class PropertyList
{
public:
    // The elements of an event, which keeps them: they are counted neither here nor among the consumed ones. The words
    // and the context are used for every reading.
    PropertyList(const CZtPropertyList& elements, const DisplayWords& words, std::uint64_t hostContext);
    PropertyList(CZtPropertyList&&, const DisplayWords&, std::uint64_t) = delete;

    // One element alone.
    PropertyList(const CZtPropertyElement& element, const DisplayWords& words, std::uint64_t hostContext)
        : elements_({&element}), words_(words), hostContext_(hostContext)
    {
    }

    [[nodiscard]] bool IsEmpty() const { return elements_.empty(); }

    // False for most names that aren't there: their lengths tell it.
    [[nodiscard]] bool MayHold(const char* name) const
    {
        return IsGroup(name) || (words_.Look(DisplayWords::Context::PropertyTypes, name).lengths &
                                 (lengths_ != 0 ? lengths_ : Lengths())) != 0;
    }

    // Takes the first element of a name, which is compared as it stands and in the user's language: the element leaves
    // the list and goes to the consumed ones when they are given; its tag goes to tag when asked for. "BlockAttributes"
    // takes the first element of the group of that name instead, its tag being the element's name. Gives the value,
    // null when there is no such element.
    CZtVariant TakeProperty(const char* name, ConsumedProperties* consumed = nullptr, CZtVariant* tag = nullptr)
    {
        return MayHold(name) ? Take(name, consumed, tag) : CZtVariant();
    }

    // The same for three coordinates, each 0 when it is missing.
    OdGePoint3d TakePoint(const char* xName, const char* yName, const char* zName,
                          ConsumedProperties* consumed = nullptr);

    // A number, or the default when it is missing.
    double TakeDouble(const char* name, double missing, ConsumedProperties* consumed = nullptr);

    // The points of a list; empty when it is missing or no list.
    OdArray<OdGePoint3d> TakePoints(const char* name, ConsumedProperties* consumed = nullptr);

    // An element of a series: its fields, which stand behind the stem and are parted by "_", and its value.
    struct Numbered
    {
        std::vector<int> fields;
        CZtVariant value;
    };

    // The elements with a value whose name begins with the stem, in their order: they stay in the list. With the
    // consumed ones given they are taken. A field that is no number is 0.
    [[nodiscard]] std::vector<Numbered> Series(const char* stem) const;
    [[nodiscard]] std::vector<Numbered> TakeSeries(const char* stem, ConsumedProperties& consumed);

    // True when the list holds an element of the name.
    [[nodiscard]] bool Holds(const char* name) const;

    // Removes for each consumed element the first one of the same name and group.
    void DropConsumed(const ConsumedProperties& consumed);

private:
    // The one name that stands for a whole group.
    [[nodiscard]] static bool IsGroup(const char* name)
    {
        return name[0] == 'B' && std::strcmp(name, "BlockAttributes") == 0;
    }

    [[nodiscard]] PropertyElements::const_iterator Find(const char* name) const;
    CZtVariant Take(const char* name, ConsumedProperties* consumed, CZtVariant* tag);
    [[nodiscard]] std::uint64_t Lengths() const;

    PropertyElements elements_;
    mutable std::uint64_t lengths_ = 0; // of the names, as DisplayWords::Word has them; 0 when they must be reckoned
    const DisplayWords& words_;
    std::uint64_t hostContext_;
};
