// The root of all objects of the application: run-time class, reference count, copy and comparison.
#pragma once

#include "host/odrx/class.h"
#include "host/odrx/smart_ptr.h"

#include <atomic>

class KVHOST_API OdRxObject
{
public:
    OdRxObject() = default;
    virtual ~OdRxObject();
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;

    // This object when it is of the class or of one below it, else null. Adds no reference.
    [[nodiscard]] virtual OdRxObject* queryX(const OdRxClass* wanted) const;

    // The protocol extension object for the class; null when there is none.
    [[nodiscard]] virtual OdRxObject* x(const OdRxClass* wanted) const;

    // The exact class of the object.
    [[nodiscard]] virtual const OdRxClass* isA() const;

    // Add and drop a reference. Dropping the last one deletes the object.
    virtual void addRef();
    virtual void release();

    // The number of references.
    [[nodiscard]] virtual long numRefs() const;

    // A copy of the object; null for objects that can't be copied.
    [[nodiscard]] virtual OdSmartPtr<OdRxObject> clone() const;

    // Takes over the contents of another object of the same class; does nothing for objects without contents.
    virtual void copyFrom(const OdRxObject* source);

    // Equality and order of contents; by default those of identity. comparedTo gives 0 for equal, else -1 or 1.
    [[nodiscard]] virtual bool isEqualTo(const OdRxObject* other) const;
    [[nodiscard]] virtual int comparedTo(const OdRxObject* other) const;

    // The description of this class.
    [[nodiscard]] static const OdRxClass* desc();

    // True when the object is of the class or of one below it.
    [[nodiscard]] bool isKindOf(const OdRxClass* wanted) const { return isA()->isDerivedFrom(wanted); }

protected:
    std::atomic<long> references_ = 0;
};

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

// The members that every class with a run-time description has.
#define ODRX_DECLARE_MEMBERS(Class)                                                                                    \
public:                                                                                                                \
    [[nodiscard]] static const OdRxClass* desc();                                                                      \
    [[nodiscard]] const OdRxClass* isA() const override;

// Their definition, in the library that owns the class.
#define ODRX_DEFINE_MEMBERS(Class, Parent, databaseName)                                                               \
    const OdRxClass* Class::desc()                                                                                     \
    {                                                                                                                  \
        static const OdRxClass description(QStringLiteral(databaseName), Parent::desc());                              \
        return &description;                                                                                           \
    }                                                                                                                  \
    const OdRxClass* Class::isA() const                                                                                \
    {                                                                                                                  \
        return desc();                                                                                                 \
    }
