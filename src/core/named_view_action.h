// What a custom action tells of a named view.
#pragma once

#include "core/action_data.h"

struct NamedViewAction
{
    OdDbHandle handle;
    const OdRxClass* objectClass;
    bool isSheetView;
    bool exists; // the view was there before; it is then found by its name
    QString background;
    QString name;
    QString viewClass;
    OdGePoint3d corner1;
    OdGePoint3d corner2;

    // The head of the data of an action, nothing when an item is of another type.
    [[nodiscard]] static std::optional<NamedViewAction> Read(const ActionData& data);
};
