#include "ComponentConfigurationStore.h"

#include "framework/Debug.h"
#include "kernel/PathText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <algorithm>

namespace Orvo::UI::QtExtensions {

ComponentConfigurationStore::ComponentConfigurationStore(std::filesystem::path file,
                                                         std::filesystem::path defaultsDirectory)
    : m_file(std::move(file))
    , m_defaultsDirectory(std::move(defaultsDirectory))
{
    ReadFile();
}

QString ComponentConfigurationStore::Load(const QString& key) const
{
    auto it = m_configurations.constFind(key);
    return it != m_configurations.constEnd() ? *it : LoadDefault(key);
}

QString ComponentConfigurationStore::LoadDefault(const QString& key) const
{
    if (m_defaultsDirectory.empty() || key.isEmpty())
        return {};
    const QDir directory(Kernel::Directories::ToQString(m_defaultsDirectory));
    // Compared by name rather than through a name filter, so a key is never read as a wildcard.
    const QFileInfoList files = directory.entryInfoList(QDir::Files, QDir::Name);
    const auto match = std::find_if(files.begin(), files.end(),
                                    [&key](const QFileInfo& info) { return info.completeBaseName() == key; });
    if (match == files.end())
        return {};
    QFile file(match->absoluteFilePath());
    if (!file.open(QIODevice::ReadOnly)) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("Cannot read the default configuration %1").arg(file.fileName()));
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

void ComponentConfigurationStore::Store(const QString& key, const QString& configuration)
{
    if (m_configurations.value(key) == configuration && m_configurations.contains(key))
        return;
    m_configurations.insert(key, configuration);
    WriteFile();
}

void ComponentConfigurationStore::ReadFile()
{
    QFile file(Kernel::Directories::ToQString(m_file));
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        Kernel::Framework::DebugOutput(QStringLiteral("Cannot read %1").arg(file.fileName()));
        return;
    }
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        // A damaged file must not cost the user the panels: start from defaults, keep the file
        // aside so nothing is lost.
        Kernel::Framework::DebugOutput(QStringLiteral("Ignoring damaged component configuration %1: %2")
                                           .arg(file.fileName(), error.errorString()));
        QFile::remove(file.fileName() + QStringLiteral(".damaged"));
        file.close();
        QFile::copy(file.fileName(), file.fileName() + QStringLiteral(".damaged"));
        return;
    }
    const auto object = document.object();
    for (auto it = object.begin(); it != object.end(); ++it)
        m_configurations.insert(it.key(), it.value().toString());
}

void ComponentConfigurationStore::WriteFile() const
{
    const QString path = Kernel::Directories::ToQString(m_file);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QJsonObject object;
    for (auto it = m_configurations.begin(); it != m_configurations.end(); ++it)
        object.insert(it.key(), it.value());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        Kernel::Framework::DebugOutput(QStringLiteral("Cannot write %1").arg(path));
        return;
    }
    file.write(QJsonDocument(object).toJson());
    if (!file.commit())
        Kernel::Framework::DebugOutput(QStringLiteral("Cannot write %1").arg(path));
}

} // namespace Orvo::UI::QtExtensions
