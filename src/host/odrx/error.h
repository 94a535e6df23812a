// The exceptions of the application and its drawing library.
#pragma once

#include "host/export.h"

#include <exception>

// Result values that an OdError can carry.
enum OdResult : int
{
    eOk = 0,
    eInvalidIndex = 11,
    eNullObjectPointer = 20, // an operation needs an object that isn't there
    eNotThatKindOfClass = 47,
};

// A failure reported by the application or the drawing library.
class KVHOST_API OdError : public std::exception
{
public:
    explicit OdError(OdResult code) noexcept : code_(code) {}

    // The result value that tells what failed.
    [[nodiscard]] OdResult code() const noexcept { return code_; }

    // A short description for people.
    [[nodiscard]] const char* what() const noexcept override;

private:
    OdResult code_;
};

// An index past the end of an array.
class KVHOST_API OdError_InvalidIndex : public OdError
{
public:
    OdError_InvalidIndex() noexcept : OdError(eInvalidIndex) {}
    [[nodiscard]] const char* what() const noexcept override;
};

// An object that is not of the class it is cast to.
class KVHOST_API OdError_NotThatKindOfClass : public OdError
{
public:
    OdError_NotThatKindOfClass() noexcept : OdError(eNotThatKindOfClass) {}
    [[nodiscard]] const char* what() const noexcept override;
};
