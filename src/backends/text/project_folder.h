// Writes the files of a macro's project beside the macro.
#pragma once

#include "host/kernel/result_code.h"

#include <QtCore/QString>

#include <initializer_list>

namespace kv
{

struct ProjectFile
{
    QString name;
    QString text;
    bool byteOrderMark;
};

// Writes the files in their order into the folder of outputPath, the macro's path; makes the folder with its parents
// when it is missing. Gives 5100, or -5001 at the first thing that fails; what was written until then stays.
[[nodiscard]] ResultCode WriteProjectFolder(const QString& outputPath, std::initializer_list<ProjectFile> files);

} // namespace kv
