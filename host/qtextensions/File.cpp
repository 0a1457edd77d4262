#include "File.h"

#include "kernel/Directories.h"
#include "kernel/PathText.h"

#include <QDir>
#include <QUrl>

namespace Orvo::UI::QtExtensions::File {

QString createQmlFilePath(const std::filesystem::path& path)
{
    const QString local = QDir::cleanPath(Kernel::Directories::ToQString(path));
    return QUrl::fromLocalFile(local).toString();
}

QString createQmlFilePathFromApplicationPath(const std::filesystem::path& path)
{
    if (path.empty())
        return {};
    if (path.is_absolute())
        return createQmlFilePath(path);
    return createQmlFilePath(
        Kernel::Directories::GetDirectory(Kernel::Directories::DirectoryType::ApplicationDirectory) / path);
}

QString createQmlFilePathFromApplicationPath(const std::wstring& path)
{
    return createQmlFilePathFromApplicationPath(Kernel::Directories::ToPath(path));
}

std::wstring getRelativePathFromQmlPath(const QString& qmlPath)
{
    const QUrl url(qmlPath);
    if (!url.isLocalFile())
        return qmlPath.toStdWString();
    const QString local = QDir::cleanPath(url.toLocalFile());
    const QDir applicationDirectory(Kernel::Directories::ToQString(
        Kernel::Directories::GetDirectory(Kernel::Directories::DirectoryType::ApplicationDirectory)));
    const QString relative = applicationDirectory.relativeFilePath(local);
    if (relative.startsWith(QLatin1String("../")) || relative == QLatin1String(".."))
        return local.toStdWString();
    return relative.toStdWString();
}

} // namespace Orvo::UI::QtExtensions::File
