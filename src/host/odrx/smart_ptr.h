// A counted pointer to an object of the application.
#pragma once

#include "host/odrx/error.h"

#include <utility>

class OdRxObject;

template <class T>
class OdSmartPtr
{
public:
    OdSmartPtr() noexcept = default;
    OdSmartPtr(std::nullptr_t) noexcept {}
    OdSmartPtr(T* object) : object_(object) { acquire(); }
    OdSmartPtr(const OdSmartPtr& other) : object_(other.object_) { acquire(); }
    OdSmartPtr(OdSmartPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    template <class U>
        requires std::is_convertible_v<U*, T*>
    OdSmartPtr(const OdSmartPtr<U>& other) : OdSmartPtr(other.get())
    {
    }

    ~OdSmartPtr() { reset(); }

    OdSmartPtr& operator=(const OdSmartPtr& other) // NOLINT(bugprone-unhandled-self-assignment): copied and swapped
    {
        OdSmartPtr copy(other);
        std::swap(object_, copy.object_);
        return *this;
    }

    OdSmartPtr& operator=(OdSmartPtr&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }

    // A new object with one reference.
    template <class... Arguments>
    [[nodiscard]] static OdSmartPtr make(Arguments&&... arguments)
    {
        return OdSmartPtr(new T(std::forward<Arguments>(arguments)...));
    }

    // The object as a T; null for null. Throws OdError_NotThatKindOfClass when it is of another class.
    template <class U>
    [[nodiscard]] static OdSmartPtr cast(U* object)
    {
        if (object == nullptr)
        {
            return {};
        }
        if (object->queryX(T::desc()) == nullptr)
        {
            throw OdError_NotThatKindOfClass();
        }
        return OdSmartPtr(static_cast<T*>(object));
    }

    template <class U>
    [[nodiscard]] static OdSmartPtr cast(const OdSmartPtr<U>& object)
    {
        return cast(object.get());
    }

    // Drops the reference.
    void reset() noexcept
    {
        if (T* object = std::exchange(object_, nullptr))
        {
            object->release();
        }
    }

    [[nodiscard]] T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    friend bool operator==(const OdSmartPtr& left, const OdSmartPtr& right) { return left.object_ == right.object_; }

private:
    void acquire()
    {
        if (object_ != nullptr)
        {
            object_->addRef();
        }
    }

    T* object_ = nullptr;
};
