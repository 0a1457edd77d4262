#pragma once

#include "HostKitExport.h"

#include <QString>
#include <filesystem>
#include <string>

namespace Orvo::Kernel::Directories {

// Conversions between paths and texts that go through UTF-8 explicitly. std::filesystem's own
// wide conversions depend on the C locale and throw for non-ASCII names under "C", which is
// what a service or CI environment usually runs with.
HOSTKIT_EXPORT std::filesystem::path ToPath(const QString& text);
HOSTKIT_EXPORT std::filesystem::path ToPath(const std::wstring& text);
HOSTKIT_EXPORT QString ToQString(const std::filesystem::path& path);
HOSTKIT_EXPORT std::wstring ToWString(const std::filesystem::path& path);

} // namespace Orvo::Kernel::Directories
