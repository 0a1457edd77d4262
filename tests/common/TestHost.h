#pragma once

#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <memory>

// A host for one test: an application directory of its own (a temporary folder the test fills
// with shipped files) and a fresh global service catalog built on it. Everything is put back
// when it goes.
class TestHost
{
public:
    TestHost()
    {
        using namespace Orvo::Kernel;
        Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory,
                                  m_directory.path().toStdWString());
        Directories::SetDirectory(Directories::DirectoryType::UserConfigurationDirectory,
                                  (m_directory.path() + QStringLiteral("/user")).toStdWString());
    }

    ~TestHost()
    {
        Orvo::Kernel::Framework::ServiceCatalog::SetGlobal(nullptr);
        Orvo::Kernel::Directories::ResetDirectories();
    }

    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    // Writes a file under the application directory, creating its folders.
    void WriteFile(const QString& relativePath, const QByteArray& content) const
    {
        const QString path = m_directory.filePath(relativePath);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }

    QString FilePath(const QString& relativePath) const { return m_directory.filePath(relativePath); }
    QString Path() const { return m_directory.path(); }

    // Installs a catalog with the host kit's default services, built on the files written so far.
    std::shared_ptr<Orvo::Kernel::Framework::ServiceCatalog> StartServices()
    {
        auto catalog = Orvo::Kernel::Framework::ServiceCatalog::CreateWithDefaults();
        Orvo::Kernel::Framework::ServiceCatalog::SetGlobal(catalog);
        return catalog;
    }

private:
    QTemporaryDir m_directory;
};
