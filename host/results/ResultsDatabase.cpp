#include "ResultsDatabase.h"

#include "SqliteConnection.h"
#include "analysis/AnalysisLogging.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <algorithm>

namespace Orvo::Kernel::Results {

namespace {

QString SelectColumns(ResultsTable table, const QString& prefix)
{
    QStringList names;
    for (const ResultsColumn& column : ResultsSchema::Columns(table))
        names << prefix + column.name;
    return names.join(QStringLiteral(", "));
}

QString OrderTable(ResultsTable table)
{
    return QStringLiteral("temp.sorted_") + ResultsSchema::TableName(table);
}

} // namespace

struct ResultsDatabase::Private
{
    explicit Private(const QString& path)
        : connection(path)
    { }

    SqliteConnection connection;
    std::array<bool, 4> sorted {};
    // Read statements kept prepared: one per table and order.
    std::array<std::unique_ptr<QSqlQuery>, 4> plain;
    std::array<std::unique_ptr<QSqlQuery>, 4> ordered;

    QSqlQuery& Reader(ResultsTable table)
    {
        const auto index = std::size_t(table);
        auto& query = sorted[index] ? ordered[index] : plain[index];
        if (!query) {
            query = std::make_unique<QSqlQuery>(connection.Database());
            query->setForwardOnly(true);
            const QString name = ResultsSchema::TableName(table);
            query->prepare(
                sorted[index] ? QStringLiteral("SELECT %1 FROM %2 s JOIN %3 t ON t.row = s.target "
                                               "WHERE s.position > ? AND s.position <= ? ORDER BY s.position")
                                    .arg(SelectColumns(table, QStringLiteral("t.")), OrderTable(table), name)
                              : QStringLiteral("SELECT %1 FROM %2 WHERE row >= ? AND row < ? ORDER BY row")
                                    .arg(SelectColumns(table, QString()), name));
        }
        return *query;
    }
};

ResultsDatabase::ResultsDatabase(const QString& path)
    : d(std::make_unique<Private>(path))
    , m_path(path)
{
    if (!d->connection.IsOpen()) {
        qCWarning(Analysis::AnalysisCategory(), "Cannot open the results %s: %s", qPrintable(path),
                  qPrintable(d->connection.LastError()));
        return;
    }
    QSqlQuery query(d->connection.Database());
    if (query.exec(QStringLiteral("SELECT value FROM info WHERE key = 'dofs'")) && query.next())
        m_dofs = query.value(0).toInt();
    if (query.exec(QStringLiteral("SELECT * FROM result_sets ORDER BY position"))) {
        while (query.next()) {
            ResultSetSummary set;
            set.position = query.value(0).toInt();
            set.combination = query.value(1).toInt() != 0;
            set.number = query.value(2).toInt();
            set.name = query.value(3).toString();
            set.maxDisplacement = query.value(4).toDouble();
            set.maxDisplacementNode = query.value(5).toInt();
            set.reactions
                = { query.value(6).toDouble(), query.value(7).toDouble(), query.value(8).toDouble() };
            set.maxMoment = query.value(9).toDouble();
            set.maxMomentMember = query.value(10).toInt();
            m_sets.push_back(set);
        }
    }
    for (ResultsTable table : c_allResultsTables) {
        // Rows are numbered from 0 without gaps: the largest number tells the count.
        if (query.exec(QStringLiteral("SELECT MAX(row) FROM %1").arg(ResultsSchema::TableName(table)))
            && query.next() && !query.value(0).isNull())
            m_rowCounts[std::size_t(table)] = query.value(0).toInt() + 1;
    }
}

ResultsDatabase::~ResultsDatabase() = default;

bool ResultsDatabase::IsOpen() const
{
    return d->connection.IsOpen() && !m_sets.empty();
}

int ResultsDatabase::RowCount(ResultsTable table) const
{
    return m_rowCounts[std::size_t(table)];
}

std::vector<std::vector<QVariant>> ResultsDatabase::ReadRows(ResultsTable table, int first, int count) const
{
    std::vector<std::vector<QVariant>> rows;
    first = std::max(0, first);
    const int last = std::min(RowCount(table), first + std::max(0, count));
    if (first >= last)
        return rows;
    QSqlQuery& query = d->Reader(table);
    query.bindValue(0, first);
    query.bindValue(1, last);
    if (!query.exec()) {
        qCWarning(Analysis::AnalysisCategory(), "Cannot read results: %s",
                  qPrintable(query.lastError().text()));
        return rows;
    }
    const int width = int(ResultsSchema::Columns(table).size());
    rows.reserve(std::size_t(last - first));
    while (query.next()) {
        std::vector<QVariant> row(static_cast<std::size_t>(width));
        for (int column = 0; column < width; ++column)
            row[std::size_t(column)] = query.value(column);
        rows.push_back(std::move(row));
    }
    query.finish();
    return rows;
}

bool ResultsDatabase::Sort(ResultsTable table, const QString& column, Tables::TableSortOrder order)
{
    const auto index = std::size_t(table);
    const QString name = ResultsSchema::TableName(table);
    d->ordered[index].reset();
    d->connection.Execute({ QStringLiteral("DROP TABLE IF EXISTS %1").arg(OrderTable(table)) });
    d->sorted[index] = false;
    if (order == Tables::TableSortOrder::Unsorted)
        return true;
    const auto& columns = ResultsSchema::Columns(table);
    if (std::none_of(columns.begin(), columns.end(),
                     [&column](const ResultsColumn& c) { return c.name == column; }))
        return false;
    // The index makes this and every later sort by the column a walk along it.
    const QString direction
        = order == Tables::TableSortOrder::Descending ? QStringLiteral("DESC") : QStringLiteral("ASC");
    QString error;
    const bool made = d->connection.Execute(
        { QStringLiteral("CREATE INDEX IF NOT EXISTS sort_%1_%2 ON %1 (%2, row)").arg(name, column),
          QStringLiteral("CREATE TABLE %1 (position INTEGER PRIMARY KEY, target INTEGER)")
              .arg(OrderTable(table)),
          // Positions count from 1 in the order rows are inserted; ties keep the table's own order.
          QStringLiteral("INSERT INTO %1 (target) SELECT row FROM %2 ORDER BY %3 %4, row")
              .arg(OrderTable(table), name, column, direction) },
        &error);
    if (!made) {
        qCWarning(Analysis::AnalysisCategory(), "Cannot sort results: %s", qPrintable(error));
        return false;
    }
    d->sorted[index] = true;
    return true;
}

} // namespace Orvo::Kernel::Results
