// A hyperlink as the API takes it.
#pragma once

#include <QtCore/QString>

struct HyperLink
{
    enum class Kind
    {
        PlaceInThisDrawing,
        FileOrWebPage,
        EmailAddress,
    };

    Kind kind = Kind::FileOrWebPage;
    QString target;  // the address as it stands, or the recipient of a mail
    QString subject; // of a mail
    QString description;
};

// What an address means: "#..." is a place in the drawing, "mailto:to?subject=text" a mail, all else a file or page.
[[nodiscard]] HyperLink ParseHyperLink(const QString& address, const QString& description);
