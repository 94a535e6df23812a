// The description of a class: its name and its parent. Classes are told apart by the address of their description.
#pragma once

#include "host/export.h"

#include <QtCore/QString>

class KVHOST_API OdRxClass
{
public:
    // A class of the given name below parent; the root class has a null parent.
    OdRxClass(const QString& name, const OdRxClass* parent) : name_(name), parent_(parent) {}

    ~OdRxClass() = default;
    OdRxClass(const OdRxClass&) = delete;
    OdRxClass& operator=(const OdRxClass&) = delete;

    // The name of the class in the database, such as "AcDbLine".
    [[nodiscard]] const QString& name() const { return name_; }

    // The class above this one, null for the root.
    [[nodiscard]] const OdRxClass* myParent() const { return parent_; }

    // True when other is this class or stands above it.
    [[nodiscard]] bool isDerivedFrom(const OdRxClass* other) const
    {
        for (const OdRxClass* level = this; level != nullptr; level = level->parent_)
        {
            if (level == other)
            {
                return true;
            }
        }
        return false;
    }

private:
    QString name_;
    const OdRxClass* parent_;
};
