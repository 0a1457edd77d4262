#include "Directories.h"

#include "PathText.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <map>
#include <mutex>

namespace Orvo::Kernel::Directories {

namespace {

std::mutex g_mutex;
std::map<DirectoryType, std::filesystem::path> g_directories;

std::filesystem::path DefaultDirectory(DirectoryType type)
{
    switch (type) {
    case DirectoryType::ApplicationDirectory:
        if (QCoreApplication::instance())
            return ToPath(QCoreApplication::applicationDirPath());
        return std::filesystem::current_path();
    case DirectoryType::UserConfigurationDirectory: {
        QString location = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
        if (location.isEmpty())
            location = QDir::homePath() + QStringLiteral("/.config/QtComponents");
        return ToPath(location);
    }
    case DirectoryType::TemporaryDirectory:
        return std::filesystem::temp_directory_path();
    }
    return std::filesystem::current_path();
}

} // namespace

std::filesystem::path GetDirectory(DirectoryType type)
{
    std::lock_guard lock(g_mutex);
    auto it = g_directories.find(type);
    return it != g_directories.end() ? it->second : DefaultDirectory(type);
}

void SetDirectory(DirectoryType type, const std::filesystem::path& directory)
{
    std::lock_guard lock(g_mutex);
    g_directories[type] = directory;
}

void ResetDirectories()
{
    std::lock_guard lock(g_mutex);
    g_directories.clear();
}

} // namespace Orvo::Kernel::Directories
