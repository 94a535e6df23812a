// A hyperlink as the API takes it.
#include "objects/hyperlink.h"

HyperLink ParseHyperLink(const QString& address, const QString& description)
{
    // A mail link is told by its colon alone: "mailto" has six letters.
    constexpr int colonOfMail = 6;
    if (address.startsWith(QLatin1Char('#')))
    {
        return {HyperLink::Kind::PlaceInThisDrawing, address, {}, description};
    }
    if (address.size() <= colonOfMail || address.at(colonOfMail) != QLatin1Char(':'))
    {
        return {HyperLink::Kind::FileOrWebPage, address, {}, description};
    }
    const QString mail = address.mid(colonOfMail + 1);
    const int equals = address.indexOf(QLatin1Char('='));
    return {HyperLink::Kind::EmailAddress, mail.left(mail.indexOf(QLatin1Char('?'))),
            equals >= 0 ? address.mid(equals + 1) : QString(), description};
}
