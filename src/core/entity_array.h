// Entities of the journal as the macro can name them.
#pragma once

#include <QtCore/QStringList>

// Three parallel lists. A name and a type are null texts for an entity that isn't known to the macro.
struct EntityArray
{
    QStringList names;   // variables
    QStringList types;   // constants of the API's object types
    QStringList handles; // handles as text

    [[nodiscard]] int size() const { return names.size(); }
};
