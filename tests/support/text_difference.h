// Two texts that should be equal, told apart for people.
#pragma once

#include <QtCore/QString>

// The first lines that differ with the lines ahead of them, in the form of a diff; empty for equal texts.
[[nodiscard]] QString FirstDifference(const QString& expected, const QString& actual);
