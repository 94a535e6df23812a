// The database classes that a macro can speak of, and their names in the automation API.
#pragma once

#include "host/odrx/class.h"

#include <QString>
#include <span>

namespace kv
{
/// A database class and what stands for it in the generated code.
struct ObjectType
{
    QString className;    ///< the database class, such as "AcDbArc"
    QString word;         ///< the bare API class word, such as "CircleArc"
    QString constant;     ///< the API object type constant, such as "kvCircleArcType"
    QString variableType; ///< the type of a variable in the C++ API, such as "kvCircleArc_ptr"
};

/// All object types in the order of the API's list. Each class stands in one row only, but classes can share a word or
/// a constant. Whoever looks for a word walks this list and meets the rows in that order.
[[nodiscard]] std::span<const ObjectType> ObjectTypes();

/// Gives the row of the database class, or null when it has none. Letter case counts; the cost is one hash look-up, and
/// nothing is copied. The row lives as long as the module.
[[nodiscard]] const ObjectType* FindObjectType(const QString& className);

/// Tells whether the macro numbers objects of the database class. This is no question of having a type row:
/// "AcDb2dPolyline" has one and isn't supported; "AcDbViewTable" and "AcDbLayerTable" are supported and have none.
/// Letter case counts; the cost is one hash look-up.
[[nodiscard]] bool IsSupportedClass(const QString& className);

/// What the tables say of a class. Null says nothing.
struct ClassFacts
{
    const ObjectType* type = nullptr; ///< its row, null when it has none
    bool isSupported = false;         ///< as IsSupportedClass
};

/// The same by the class itself, which is looked up by its name only once.
[[nodiscard]] const ClassFacts& FactsOf(const OdRxClass* objectClass);
} // namespace kv
