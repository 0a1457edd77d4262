#pragma once

#include "HostKitExport.h"

#include <QSqlDatabase>
#include <QString>

namespace Orvo::Kernel::Results {

// One connection to an SQLite file, for the thread that makes it: Qt SQL connections must not be
// shared between threads. The connection goes with the object.
class HOSTKIT_EXPORT SqliteConnection
{
public:
    explicit SqliteConnection(const QString& path);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    bool IsOpen() const { return m_database.isOpen(); }
    QSqlDatabase& Database() { return m_database; }
    // Runs statements that return nothing; false, with the error, at the first that fails.
    bool Execute(const QStringList& statements, QString* error = nullptr);
    QString LastError() const;

private:
    QString m_name;
    QSqlDatabase m_database;
};

} // namespace Orvo::Kernel::Results
