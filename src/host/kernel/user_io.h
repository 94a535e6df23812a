// How a command talks to the user: prompts, keywords, selections and files.
#pragma once

#include "host/db/object_id.h"
#include "host/export.h"
#include "host/ge/point3d.h"
#include "host/kernel/result_code.h"
#include "host/kernel/zt_string.h"

#include <algorithm>
#include <utility>
#include <vector>

// A keyword in the user's language and its global form. The upper-case letters of the local form are its shortcut;
// behind a comma stands what is typed where that isn't the text that is shown, as in "? to list,?". Prompts answer with
// the global form up to its comma.
struct CZtKeyword
{
    CZtString local;
    CZtString global;
};

class CZtKeywordArray
{
public:
    void push_back(CZtString local, CZtString global) { keywords_.push_back({std::move(local), std::move(global)}); }

    [[nodiscard]] bool isEmpty() const { return keywords_.empty(); }
    [[nodiscard]] auto begin() const { return keywords_.begin(); }
    [[nodiscard]] auto end() const { return keywords_.end(); }

private:
    std::vector<CZtKeyword> keywords_;
};

// Selected objects in the order of their selection, each once.
class CZtSelectionSet
{
public:
    // False when the object is selected already.
    bool append(const OdDbObjectId& id)
    {
        const bool isNew = std::find(ids_.begin(), ids_.end(), id) == ids_.end();
        if (isNew)
        {
            ids_.push_back(id);
        }
        return isNew;
    }

    [[nodiscard]] bool isEmpty() const { return ids_.empty(); }
    [[nodiscard]] const std::vector<OdDbObjectId>& ids() const { return ids_; }

private:
    std::vector<OdDbObjectId> ids_;
};

struct CZtPrompt
{
    CZtString text;
    CZtString hint; // what an empty answer does; empty for no hint
    CZtKeywordArray keywords;
    CZtString defaultKeyword; // the global form of the keyword that an empty answer chooses; empty for none
};

// The dialog that asks for a file.
struct CZtFileDialog
{
    CZtString title;
    CZtString extension; // of files of the type, without a dot
    CZtString typeText;
    CZtString filterText;
    CZtString filterPattern;
    bool create = false; // true for a file that need not exist
};

// The prompt for a line style of the drawing; %1 in the message is the name that was answered.
struct CZtLinetypePrompt
{
    CZtString text;
    CZtString textForSeveral;
    CZtString notFound;
    CZtString notFoundHint;
};

// Each question gives ResultNormal with the answer, ResultCancelled, or another code when it can't be asked. An answer
// that isn't of the kind asked for is asked for again.
class KVHOST_API CZtUserIO
{
public:
    CZtUserIO() = default;
    virtual ~CZtUserIO();
    CZtUserIO(const CZtUserIO&) = delete;
    CZtUserIO& operator=(const CZtUserIO&) = delete;

    // Shows a text on lines of its own.
    virtual void Print(const CZtString& text) = 0;

    // The global form of a keyword of the prompt; empty for an empty answer without a default.
    [[nodiscard]] virtual ResultCode GetKeyword(const CZtPrompt& prompt, CZtString& keyword) = 0;

    // A text, which may be empty and may hold blanks. ResultKeyword with the global form for a keyword of the prompt.
    [[nodiscard]] virtual ResultCode GetString(const CZtPrompt& prompt, CZtString& answer) = 0;

    // A point, and the corner that lies opposite to another one, in drawing units.
    [[nodiscard]] virtual ResultCode GetPoint(const CZtPrompt& prompt, OdGePoint3d& point) = 0;
    [[nodiscard]] virtual ResultCode GetCorner(const CZtPrompt& prompt, const OdGePoint3d& opposite,
                                               OdGePoint3d& corner) = 0;

    // Adds what the user selects to the set, which stays empty when nothing is selected.
    [[nodiscard]] virtual ResultCode GetEntities(CZtSelectionSet& selection) = 0;

    // The path of a file; empty when none is chosen.
    [[nodiscard]] virtual ResultCode GetFile(const CZtFileDialog& dialog, CZtString& path) = 0;

    // A line style of the drawing; the null id when none is chosen, and, after the prompt's message and hint, when the
    // drawing has none of the name answered.
    [[nodiscard]] virtual ResultCode GetLinetype(const CZtLinetypePrompt& prompt, OdDbObjectId& linetype) = 0;
};
