// Writes the files of a macro's project beside the macro.
#include "backends/text/project_folder.h"

#include "core/converter_impl.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace kv
{

ResultCode WriteProjectFolder(const QString& outputPath, std::initializer_list<ProjectFile> files)
{
    const QString folder = QFileInfo(outputPath).path();
    if (!QDir(folder).exists() && !QDir().mkpath(folder))
    {
        return ResultError;
    }
    const QString prefix = folder + QLatin1String("//");
    const bool written = std::ranges::all_of(
        files, [&](const ProjectFile& file)
        { return CZtConverterKVAPIImpl::WriteTextFile(prefix + file.name, file.text, file.byteOrderMark); });
    return written ? ResultNormal : ResultError;
}

} // namespace kv
