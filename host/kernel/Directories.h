#pragma once

#include "HostKitExport.h"

#include <filesystem>

namespace Orvo::Kernel::Directories {

enum class DirectoryType
{
    ApplicationDirectory, // shipped files: Configuration/, images, command lists
    UserConfigurationDirectory, // per-user settings written by the components
    TemporaryDirectory,
};

// The directory of type. Until a host sets one, the application directory is the running
// executable's folder, the user configuration directory Qt's per-user config location and
// the temporary directory the system's.
HOSTKIT_EXPORT std::filesystem::path GetDirectory(DirectoryType type);
HOSTKIT_EXPORT void SetDirectory(DirectoryType type, const std::filesystem::path& directory);
// Forgets what SetDirectory stored, so the defaults apply again.
HOSTKIT_EXPORT void ResetDirectories();

} // namespace Orvo::Kernel::Directories
