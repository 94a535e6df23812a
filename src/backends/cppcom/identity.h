// The identifiers of the server that holds a C++ COM macro.
#pragma once

#include <QtCore/QString>

// As texts with braces. Each construction of the converter assigns new ones, so that all files of one conversion agree.
struct ServerIdentity
{
    QString ConnectionClassId;
    QString TypeLibraryId;

    [[nodiscard]] static ServerIdentity& OfProcess()
    {
        static ServerIdentity identity;
        return identity;
    }

    // An identifier that nothing has had.
    [[nodiscard]] static QString NewId();
};
