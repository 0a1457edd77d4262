#include "SqliteConnection.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <atomic>

namespace Orvo::Kernel::Results {

namespace {

QString UniqueName()
{
    static std::atomic<int> counter { 0 };
    return QStringLiteral("orvo.results.%1").arg(counter++);
}

} // namespace

SqliteConnection::SqliteConnection(const QString& path)
    : m_name(UniqueName())
{
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    m_database.setDatabaseName(path);
    m_database.open();
}

SqliteConnection::~SqliteConnection()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

bool SqliteConnection::Execute(const QStringList& statements, QString* error)
{
    QSqlQuery query(m_database);
    for (const QString& statement : statements) {
        if (!query.exec(statement)) {
            if (error)
                *error = QStringLiteral("%1: %2").arg(statement, query.lastError().text());
            return false;
        }
    }
    return true;
}

QString SqliteConnection::LastError() const
{
    return m_database.lastError().text();
}

} // namespace Orvo::Kernel::Results
