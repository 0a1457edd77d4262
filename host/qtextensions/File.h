#pragma once

#include "HostKitExport.h"

#include <QString>
#include <filesystem>
#include <string>

namespace Orvo::UI::QtExtensions::File {

// The image-source form of a file path as QML expects it: a file: URL.
HOSTKIT_EXPORT QString createQmlFilePath(const std::filesystem::path& path);

// The image-source form of a shipped file given relative to the application directory (an
// absolute path is kept as it is). An empty path means "no file" and gives an empty source.
HOSTKIT_EXPORT QString createQmlFilePathFromApplicationPath(const std::filesystem::path& path);
// The same for a path read as text (from XML, a settings file): the text is taken as UTF-8 and
// never goes through std::filesystem's locale-dependent wide conversion, which throws for
// non-ASCII names in the "C" locale.
HOSTKIT_EXPORT QString createQmlFilePathFromApplicationPath(const std::wstring& path);

// The inverse of createQmlFilePath for files under the application directory: the path
// relative to that directory, with forward slashes. A source outside the application
// directory comes back as an absolute local path; one that is not a local file unchanged.
HOSTKIT_EXPORT std::wstring getRelativePathFromQmlPath(const QString& qmlPath);

} // namespace Orvo::UI::QtExtensions::File
