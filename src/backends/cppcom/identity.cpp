// The identifiers of the server that holds a C++ COM macro.
#include "backends/cppcom/identity.h"

#include <QtCore/QUuid>

QString ServerIdentity::NewId()
{
    return QUuid::createUuid().toString();
}
