// A hyperlink in the extended data of an object.
#pragma once

#include "host/db/object.h"
#include "host/kernel/drawing_editor.h"

#include <optional>

namespace kv
{

struct Hyperlink
{
    QString address; // empty for the drawing itself
    QString description;
    QString place; // in the drawing
};

// The hyperlink of an object; nothing when it has none. Texts that the data lacks are empty.
[[nodiscard]] std::optional<Hyperlink> HyperlinkOf(const OdDbObject& object);

// Attaches the hyperlink in place of the object's own; registers the application of hyperlinks when it isn't yet.
void AttachHyperlink(CZtDrawingEditor& drawing, const OdDbObjectId& object, const Hyperlink& link);

// Takes the object's hyperlink away.
void RemoveHyperlink(CZtDrawingEditor& drawing, const OdDbObjectId& object);

} // namespace kv
