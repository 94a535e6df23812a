// Two texts that should be equal, told apart for people.
#pragma once

#include <QtCore/QString>

// The first lines that differ with the lines ahead of them, in the form of a diff; empty for equal texts.
[[nodiscard]] QString FirstDifference(const QString& expected, const QString& actual);

// The expected text with its folds opened. A fold is the line "... N more"; it stands for N lines of the actual text
// that differ from lines above them only in numbers and quoted texts. One that doesn't fit stays as it is, and so
// differs.
[[nodiscard]] QString Unfolded(const QString& expected, const QString& actual);
