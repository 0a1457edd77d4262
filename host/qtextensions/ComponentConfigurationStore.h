#pragma once

#include "HostKitExport.h"

#include <QHash>
#include <QString>
#include <filesystem>

namespace Orvo::UI::QtExtensions {

// Keeps every panel's user configuration string, keyed by the panel's configuration key, in
// one file of the user configuration directory. Panels receive their string when they are
// completed and hand it back when they are destroyed.
//
// A panel the user has never configured receives the application's default for it: the file
// named after its key (any extension, "MarkingMenu.xml") in the defaults directory.
class HOSTKIT_EXPORT ComponentConfigurationStore
{
public:
    explicit ComponentConfigurationStore(std::filesystem::path file,
                                         std::filesystem::path defaultsDirectory = {});

    QString Load(const QString& key) const;
    void Store(const QString& key, const QString& configuration);
    const std::filesystem::path& File() const { return m_file; }

private:
    void ReadFile();
    void WriteFile() const;
    QString LoadDefault(const QString& key) const;

    std::filesystem::path m_file;
    std::filesystem::path m_defaultsDirectory;
    QHash<QString, QString> m_configurations;
};

} // namespace Orvo::UI::QtExtensions
