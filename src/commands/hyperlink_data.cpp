// The chain of group codes that makes a hyperlink.
#include "commands/hyperlink_data.h"

namespace kv
{

namespace
{

const QString application = QStringLiteral("PE_URL");

enum GroupCode : int
{
    TextCode = 1000,
    ApplicationCode = 1001,
    BraceCode = 1002
};

OdResBufPtr Item(GroupCode code, const QString& text)
{
    return OdResBufPtr::make(code, text);
}

OdArray<OdResBufPtr> Chain(const Hyperlink& link)
{
    const QString open = QStringLiteral("{");
    const QString close = QStringLiteral("}");
    return {Item(ApplicationCode, application),
            Item(TextCode, link.address),
            Item(BraceCode, open),
            Item(TextCode, link.description),
            Item(TextCode, link.place),
            Item(BraceCode, open),
            Item(BraceCode, close),
            Item(BraceCode, close)};
}

} // namespace

std::optional<Hyperlink> HyperlinkOf(const OdDbObject& object)
{
    const OdArray<OdResBufPtr> chain = object.xData(application);
    if (chain.isEmpty())
    {
        return std::nullopt;
    }
    Hyperlink link;
    QString* const texts[] = {&link.address, &link.description, &link.place};
    std::size_t next = 0;
    for (const OdResBufPtr& item : chain)
    {
        if (item->restype() == TextCode && next < std::size(texts))
        {
            *texts[next++] = item->getString();
        }
    }
    return link;
}

void AttachHyperlink(CZtDrawingEditor& drawing, const OdDbObjectId& object, const Hyperlink& link)
{
    if (!drawing.hasApplication(application))
    {
        drawing.registerApplication(application);
    }
    drawing.setXData(object, Chain(link));
}

void RemoveHyperlink(CZtDrawingEditor& drawing, const OdDbObjectId& object)
{
    drawing.setXData(object, {Item(ApplicationCode, application)});
}

} // namespace kv
