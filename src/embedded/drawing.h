// The drawing of a session, held in memory.
#pragma once

#include "embedded/object_values.h"
#include "host/kernel/services.h"

#include <optional>
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

    // Gives a database-wide value another one; those that were changed so, each once.
    void changeValue(std::string_view name, ObjectValue value);
    [[nodiscard]] const std::vector<const ObjectKey*>& changedValues() const { return changedValues_; }

    // The line of the journal from which the object came; 0 when it came from none.
    void setLineOf(OdDbHandle handle, std::int64_t line) { entries_[handle].line = line; }
    [[nodiscard]] std::int64_t lineOf(OdDbHandle handle) const;

    // The objects that an object line gives or will give when the drawing is saved, in their order.
    [[nodiscard]] const std::vector<OdDbHandle>& described() const { return described_; }

    // Every object of the drawing, described or not, in the order of the handles.
    [[nodiscard]] std::vector<OdDbHandle> handles() const;

    // The values of an object; null when the drawing has none with the handle.
    [[nodiscard]] const ObjectValues* valuesOf(OdDbHandle handle);

    // The values of an object for changing, null as above. The object counts as described and changed from now on.
    [[nodiscard]] ObjectValues* change(OdDbHandle handle);
    [[nodiscard]] bool isChanged(OdDbHandle handle) const;

    // A new object, described and changed, whose handle follows those that the journal uses.
    [[nodiscard]] OdDbObjectId append(const OdRxClass* objectClass, ObjectValues values);

    // An object that every drawing has and that is not saved.
    [[nodiscard]] OdDbObjectId appendUnsaved(const OdRxClass* objectClass, ObjectValues values);

    // Makes all changes since the last call of either final, or undoes them.
    void keepChanges();
    void takeBackChanges();

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
        bool changed = false;
        std::int64_t line = 0;
    };

    // What an object and the database-wide values were before they were changed.
    struct Former
    {
        ObjectValues values;
        bool described = false;
        bool changed = false;
    };
    struct FormerValues
    {
        ObjectValues values;
        std::vector<const ObjectKey*> changed;
    };

    // Handles of objects that aren't saved come from here on; recorded ones are low.
    [[nodiscard]] OdDbHandle freeHighHandle() const;

    std::unordered_map<OdDbHandle, Entry> entries_;
    std::vector<OdDbHandle> described_; // in the order of the file
    ObjectValues values_;
    std::vector<const ObjectKey*> changedValues_;
    OdDbHandle currentLayout_;
    OdDbHandle lastAppended_;

    // Since the last changes were made final.
    std::unordered_map<OdDbHandle, Former> former_;
    std::optional<FormerValues> formerValues_;
    std::vector<OdDbHandle> appended_;
};
} // namespace kv
