// The user's side of a command line: prompts, and the checking of answers.
#pragma once

#include "embedded/answer_source.h"
#include "embedded/drawing.h"
#include "host/kernel/drawing_editor.h"
#include "host/kernel/user_io.h"

#include <functional>
#include <set>

namespace kv
{
class Console final : public CZtUserIO
{
public:
    // All three must outlive the console.
    Console(AnswerSource& answers, Drawing& drawing, CZtDrawingEditor& editor)
        : answers_(answers), drawing_(drawing), editor_(editor)
    {
    }

    void Print(const CZtString& text) override { answers_.Tell(text); }
    ResultCode GetKeyword(const CZtPrompt& prompt, CZtString& keyword) override;
    ResultCode GetString(const CZtPrompt& prompt, CZtString& answer) override;
    ResultCode GetPoint(const CZtPrompt& prompt, OdGePoint3d& point) override;
    ResultCode GetCorner(const CZtPrompt& prompt, const OdGePoint3d& opposite, OdGePoint3d& corner) override;

    // Entities are selected by their handles, by a window around them, or all together, until an empty answer. What is
    // listed in a block definition can't be seen and so isn't found by a window; the definition itself, whose data can
    // be edited as an entity's can, is selected by its handle.
    ResultCode GetEntities(CZtSelectionSet& selection) override;

    // A prompt stands for the dialog.
    ResultCode GetFile(const CZtFileDialog& dialog, CZtString& path) override;
    ResultCode GetLinetype(const CZtLinetypePrompt& prompt, OdDbObjectId& linetype) override;

private:
    // Asks until the answer is taken or the user cancels.
    [[nodiscard]] ResultCode askUntil(const QString& prompt, const std::function<bool(const QString& answer)>& take);
    [[nodiscard]] ResultCode askPoint(const QString& text, const OdGePoint3d& base, OdGePoint3d& point);
    [[nodiscard]] ResultCode askWindow(std::vector<OdDbObjectId>& found);
    [[nodiscard]] std::vector<OdDbObjectId> byHandles(const QString& answer);
    [[nodiscard]] std::vector<OdDbObjectId> visibleEntities();
    [[nodiscard]] bool isSelectable(OdDbHandle handle, bool blocksToo);

    AnswerSource& answers_;
    Drawing& drawing_;
    CZtDrawingEditor& editor_;
};
} // namespace kv
