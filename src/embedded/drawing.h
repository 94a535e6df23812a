// The drawing of a session, held in memory.
#pragma once

#include "embedded/object_values.h"
#include "host/kernel/services.h"

#include <unordered_map>
#include <vector>

namespace kv
{
class Drawing final : public CZtDatabase
{
public:
    Drawing();

    // An object with an "object" line. False when the handle already has one.
    [[nodiscard]] bool addObject(OdDbHandle handle, const OdRxClass* objectClass, ObjectValues values);

    // An object that an event adds; it answers with the defaults unless it has an "object" line, before or after.
    void addDefaultObject(OdDbHandle handle, const OdRxClass* objectClass);

    // Database-wide values.
    void setValue(const ObjectKey& key, ObjectValue value) { values_.set(key, std::move(value)); }
    [[nodiscard]] const ObjectValues& values() const { return values_; }

    // Makes the current layout when no object line gives it. To be called once, when all objects are known.
    void complete();

    // True when the drawing has an object with the handle.
    [[nodiscard]] bool contains(OdDbHandle handle) const { return entries_.contains(handle); }

    // The object of an "object" line; null for any other handle.
    [[nodiscard]] OdDbObjectPtr describedObject(OdDbHandle handle) const;

    // The ids of the handles that the drawing has, in their order.
    [[nodiscard]] OdArray<OdDbObjectId> presentIds(const HandleList& handles);

    // The class of the object with the handle; null when there is none.
    [[nodiscard]] const OdRxClass* classOf(OdDbHandle handle) const;

    [[nodiscard]] OdDbObjectId getOdDbObjectId(OdDbHandle handle) override;
    [[nodiscard]] OdDbObjectPtr openObject(OdDbHandle handle) override;
    [[nodiscard]] OdDbObjectId currentLayoutId() override { return getOdDbObjectId(currentLayout_); }
    [[nodiscard]] OdDbObjectId getGroupId(const OdString& name) override;
    [[nodiscard]] double getThickness() const override { return values_.get<double>("thickness"); }
    [[nodiscard]] std::int16_t getInsUnits() const override
    {
        return static_cast<std::int16_t>(values_.get<std::int32_t>("insertUnits"));
    }
    [[nodiscard]] double filletRadius() const override { return values_.get<double>("filletRadius"); }
    [[nodiscard]] double chamferFirstDistance() const override { return values_.get<double>("chamferFirstDistance"); }
    [[nodiscard]] double chamferSecondDistance() const override { return values_.get<double>("chamferSecondDistance"); }
    [[nodiscard]] double chamferLength() const override { return values_.get<double>("chamferLength"); }
    [[nodiscard]] double chamferAngle() const override { return values_.get<double>("chamferAngle"); }

private:
    struct Entry
    {
        const OdRxClass* objectClass = nullptr;
        OdDbObjectPtr object; // made when it is opened first if there is no object line
        bool described = false;
    };

    void makeCurrentLayout(const QString& name);

    std::unordered_map<OdDbHandle, Entry> entries_;
    std::vector<OdDbHandle> described_; // in the order of the file
    ObjectValues values_;
    OdDbHandle currentLayout_;
};
} // namespace kv
