// The services of the application, and the one place where a host registers them.
#pragma once

#include "host/db/database.h"
#include "host/export.h"
#include "host/kernel/conversion_observer.h"
#include "host/kernel/zt_string.h"

#include <cstdint>

// The drawing of a document.
class KVHOST_API CZtDatabase : public OdDbDatabase
{
    ODRX_DECLARE_MEMBERS(CZtDatabase)

    // The group of a name in the drawing's dictionary of groups; null when there is none.
    [[nodiscard]] virtual OdDbObjectId getGroupId(const OdString& name) = 0;

    // The thickness of new entities, in drawing units, and the number of the units in which blocks are inserted.
    [[nodiscard]] virtual double getThickness() const = 0;
    [[nodiscard]] virtual std::int16_t getInsUnits() const = 0;

    // The values that fillet and chamfer use: lengths in drawing units, the angle in radians.
    [[nodiscard]] virtual double filletRadius() const = 0;
    [[nodiscard]] virtual double chamferFirstDistance() const = 0;
    [[nodiscard]] virtual double chamferSecondDistance() const = 0;
    [[nodiscard]] virtual double chamferLength() const = 0;
    [[nodiscard]] virtual double chamferAngle() const = 0;
};

class KVHOST_API CZtDocument
{
public:
    CZtDocument() = default;
    virtual ~CZtDocument();
    CZtDocument(const CZtDocument&) = delete;
    CZtDocument& operator=(const CZtDocument&) = delete;

    // The document's drawing; never null.
    [[nodiscard]] virtual CZtDatabase* GetZtDatabase() = 0;
};

// The settings of the application, each named after what it controls.
class KVHOST_API CZtSystemSettings
{
public:
    CZtSystemSettings() = default;
    virtual ~CZtSystemSettings();
    CZtSystemSettings(const CZtSystemSettings&) = delete;
    CZtSystemSettings& operator=(const CZtSystemSettings&) = delete;

    // The language of macros: 0 C++ API, 1 C#, 2 JavaScript, 3 VB.NET, 4 C++ COM, 5 VBA. The host sets it to the
    // language asked for before it calls ConvertJournal.
    [[nodiscard]] virtual std::int16_t MacroLanguage() const = 0;

    // The values of the system variables CHAMMODE, EDGEMODE and TRIMMODE.
    [[nodiscard]] virtual std::int16_t ChamferMode() const = 0;
    [[nodiscard]] virtual std::int16_t EdgeMode() const = 0;
    [[nodiscard]] virtual std::int16_t TrimMode() const = 0;
};

class KVHOST_API CZtSystemServices
{
public:
    CZtSystemServices() = default;
    virtual ~CZtSystemServices();
    CZtSystemServices(const CZtSystemServices&) = delete;
    CZtSystemServices& operator=(const CZtSystemServices&) = delete;

    [[nodiscard]] virtual const CZtSystemSettings& Settings() const = 0;

    // The user's word for the units in which blocks are inserted, 1 "Inches" to 20 "Parsecs"; empty for other numbers.
    [[nodiscard]] virtual CZtString StringForUnitScalingFactor(std::int32_t units) const = 0;
};

// What a host offers to the module. It registers one object of this kind before it loads the module.
class KVHOST_API CZtHost
{
public:
    // Takes the registration back when it is this host's.
    CZtHost() = default;
    virtual ~CZtHost();
    CZtHost(const CZtHost&) = delete;
    CZtHost& operator=(const CZtHost&) = delete;

    [[nodiscard]] virtual CZtSystemServices& SystemServices() = 0;

    // The document at hand; null when there is none.
    [[nodiscard]] virtual CZtDocument* ActiveDocument() = 0;

    // Who is told about the conversion under way; null for nobody.
    [[nodiscard]] virtual ConversionObserver* Observer() { return nullptr; }
};

// Makes the host known in place of any other; it stays the caller's. Null takes the registration back.
KVHOST_API void RegisterHost(CZtHost* host) noexcept;

// The services of the registered host. A host must be registered.
[[nodiscard]] KVHOST_API CZtSystemServices* GetZtSystemServices();

class KVHOST_API CZtUtils
{
public:
    CZtUtils() = delete;

    // The registered host's word for the units. A host must be registered.
    [[nodiscard]] static CZtString GetStringForUnitScalingFactor(std::int32_t units);
};

// The document at hand; null when there is none or no host is registered.
[[nodiscard]] KVHOST_API CZtDocument* ACTIVE_DOCUMENT();

// Who is told about the conversion under way; null for nobody.
[[nodiscard]] KVHOST_API ConversionObserver* CurrentObserver();
