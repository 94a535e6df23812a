// The steps of -HYPERLINK.
#include "commands/hyperlink_command.h"

#include "commands/hyperlink_data.h"
#include "commands/prompts.h"

using namespace kv;

namespace
{

constexpr const char* linkOptions = "[GROUP MAIN] Command Option: Upper- and Lowercase letters are relevant.";
constexpr const char* anchorOptions = "[GROUP INS] Command Option: Upper- and Lowercase letters are relevant.";

// An object of the selection with its hyperlink.
struct Linked
{
    OdDbObjectId object;
    Hyperlink link;
};

// Which prompts for a hyperlink are asked.
enum class LinkForm
{
    Whole,
    Short // the address alone
};

class HyperlinkRun
{
public:
    HyperlinkRun(CZtUserIO& user, CZtDrawingEditor& drawing) : user_(user), drawing_(drawing) {}

    ResultCode Main()
    {
        CZtPrompt prompt;
        prompt.keywords = Keywords(linkOptions, {{"Insert", "_Insert"}, {"Remove", "_Remove"}});
        CZtString keyword;
        const ResultCode answered = user_.GetKeyword(prompt, keyword);
        return answered != ResultNormal        ? answered
               : IsKeyword(keyword, "_INSERT") ? Insert()
               : IsKeyword(keyword, "_REMOVE") ? Remove()
                                               : ResultNormal;
    }

private:
    ResultCode Insert()
    {
        CZtPrompt prompt;
        prompt.text = "Specify anchor option";
        prompt.keywords = Keywords(anchorOptions, {{"Area", "_Area"}, {"Entity", "_Entity"}, {"Object", "_Object"}});
        prompt.defaultKeyword = "_Entity";
        CZtString keyword;
        const ResultCode answered = user_.GetKeyword(prompt, keyword);
        return answered != ResultNormal                                         ? answered
               : IsKeyword(keyword, "_AREA")                                    ? InsertArea()
               : IsKeyword(keyword, "_ENTITY") || IsKeyword(keyword, "_OBJECT") ? InsertOnEntities()
                                                                                : ResultNormal;
    }

    ResultCode InsertArea(LinkForm form = LinkForm::Whole)
    {
        CZtPrompt prompt;
        prompt.text = "Specify start corner";
        OdGePoint3d start;
        ResultCode answered = user_.GetPoint(prompt, start);
        if (answered != ResultNormal)
        {
            return answered;
        }
        prompt.text = "Specify opposite corner";
        OdGePoint3d opposite;
        answered = user_.GetCorner(prompt, start, opposite);
        if (answered != ResultNormal)
        {
            return answered;
        }
        Hyperlink link;
        answered = AskHyperlink(form, link);
        if (answered != ResultNormal)
        {
            return answered;
        }
        const std::vector<OdGePoint3d> corners = {
            start, {opposite.x, start.y, start.z}, {opposite.x, opposite.y, start.z}, {start.x, opposite.y, start.z}};
        const OdDbObjectId layer = drawing_.makeLayer(QStringLiteral("URLLAYER"));
        AttachHyperlink(drawing_, drawing_.appendClosedPolyline(corners, layer), link);
        return ResultNormal;
    }

    ResultCode InsertOnEntities()
    {
        CZtSelectionSet selection;
        ResultCode answered = user_.GetEntities(selection);
        if (answered != ResultNormal || selection.isEmpty())
        {
            return answered;
        }
        Hyperlink link;
        answered = AskHyperlink(LinkForm::Whole, link);
        if (answered != ResultNormal)
        {
            return answered;
        }
        for (const OdDbObjectId& object : selection.ids())
        {
            AttachHyperlink(drawing_, object, link);
        }
        return ResultNormal;
    }

    ResultCode Ask(const char* text, const char* hint, QString& answer)
    {
        CZtPrompt prompt;
        prompt.text = text;
        prompt.hint = hint;
        CZtString given;
        const ResultCode answered = user_.GetString(prompt, given);
        answer = given.text();
        return answered;
    }

    // A hyperlink without an address leads to the active drawing.
    ResultCode AskHyperlink(LinkForm form, Hyperlink& link)
    {
        ResultCode answered = Ask("Specify hyperlink address", "Enter to use active drawing", link.address);
        if (answered == ResultNormal && form == LinkForm::Whole)
        {
            answered = Ask("Specify place in this drawing", "Enter for none", link.place);
        }
        if (answered == ResultNormal && form == LinkForm::Whole)
        {
            answered = Ask("Specify description text", "Enter for none", link.description);
        }
        return answered;
    }

    ResultCode Remove()
    {
        CZtSelectionSet selection;
        ResultCode answered = user_.GetEntities(selection);
        if (answered != ResultNormal)
        {
            return answered;
        }
        const std::vector<Linked> linked = WithHyperlink(selection);
        if (linked.empty())
        {
            return ResultNormal;
        }
        QString choice = QStringLiteral("*");
        if (linked.size() > 1)
        {
            answered = AskWhich(linked, choice);
            if (answered != ResultNormal)
            {
                return answered;
            }
        }
        bool isNumber = false;
        const int number = choice.toInt(&isNumber);
        int index = 0; // the list counts from 1, the choice from 0: that is the command's
        for (const Linked& item : linked)
        {
            if (choice == QLatin1String("*") || item.link.address == choice || (isNumber && number == index))
            {
                RemoveHyperlink(drawing_, item.object);
            }
            ++index;
        }
        // The count is that of the selection, however many were removed.
        user_.Print(linked.size() == 1 ? QStringLiteral("1 hyperlink deleted.")
                                       : QStringLiteral("%1 hyperlinks deleted.").arg(linked.size()));
        return ResultNormal;
    }

    static std::vector<Linked> WithHyperlink(const CZtSelectionSet& selection)
    {
        std::vector<Linked> linked;
        for (const OdDbObjectId& id : selection.ids())
        {
            const OdDbObjectPtr object = id.openObject();
            if (const auto link = object ? HyperlinkOf(*object) : std::nullopt)
            {
                linked.push_back({id, *link});
            }
        }
        return linked;
    }

    ResultCode AskWhich(const std::vector<Linked>& linked, QString& choice)
    {
        int number = 0;
        for (const Linked& item : linked)
        {
            user_.Print(QStringLiteral("%1 %2 (%3)").arg(++number).arg(item.link.address, item.link.description));
        }
        for (;;)
        {
            const ResultCode answered = Ask("Specify number, hyperlink, or * for all", "", choice);
            if (answered != ResultNormal || !IsRefused(choice, linked))
            {
                return answered;
            }
            user_.Print("Not a valid selection, try again.");
        }
    }

    // The command's own condition, which no answer meets: what isn't a number counts as 0.
    static bool IsRefused(const QString& choice, const std::vector<Linked>& linked)
    {
        bool isNumber = false;
        const int number = choice.toInt(&isNumber);
        const bool isAddress =
            std::ranges::any_of(linked, [&](const Linked& item) { return item.link.address == choice; });
        return choice != QLatin1String("*") && !isAddress && !isNumber && number > 0 &&
               number < static_cast<int>(linked.size());
    }

    CZtUserIO& user_;
    CZtDrawingEditor& drawing_;
};

} // namespace

CZtString CZtCommandHyperlink::groupName() const
{
    return CommandGroup;
}

ResultCode CZtCommandHyperlink::execute(OdEdCommandContext& context)
{
    CZtUserIO* user = context.GetZtUserIO();
    if (user == nullptr)
    {
        return ResultError;
    }
    const ResultCode result = HyperlinkRun(*user, context.DrawingEditor()).Main();
    return result == ResultCancelled ? ResultCancelled : ResultNormal;
}
