// The text of the drawing library.
#pragma once

#include <QtCore/QString>

using OdString = QString;
