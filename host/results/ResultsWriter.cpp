#include "ResultsWriter.h"

#include "ResultsSchema.h"
#include "SqliteConnection.h"
#include "analysis/AnalysisResults.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <cmath>

namespace Orvo::Kernel::Results {

using Analysis::AnalysisResults;
using Analysis::Vector6;

namespace {

constexpr int c_rowsPerStatement = 64;
constexpr double c_milli = 1000.0; // m to mm, rad to mrad

// Inserts the rows of one table many to a statement: binding values costs far less than running
// a statement per row.
class RowInserter
{
public:
    RowInserter(QSqlDatabase& database, ResultsTable table)
        : m_database(database)
    {
        const auto& columns = ResultsSchema::Columns(table);
        m_integer.push_back(true); // the row number
        QStringList names { QStringLiteral("row") };
        for (const ResultsColumn& column : columns) {
            m_integer.push_back(column.kind != ResultsColumn::Kind::Value);
            names << column.name;
        }
        m_statement = QStringLiteral("INSERT INTO %1 (%2) VALUES ")
                          .arg(ResultsSchema::TableName(table), names.join(','));
        m_placeholders
            = QStringLiteral("(%1)").arg(QStringList(int(m_integer.size()), QStringLiteral("?")).join(','));
        m_batch = Prepare(c_rowsPerStatement);
    }

    std::size_t Width() const { return m_integer.size(); }

    bool Add(const std::vector<double>& row)
    {
        m_pending.insert(m_pending.end(), row.begin(), row.end());
        return m_pending.size() < Width() * c_rowsPerStatement || Flush();
    }

    bool Flush()
    {
        const int rows = int(m_pending.size() / Width());
        if (rows == 0)
            return true;
        QSqlQuery partial;
        QSqlQuery& query = rows == c_rowsPerStatement ? m_batch : (partial = Prepare(rows));
        for (std::size_t i = 0; i < m_pending.size(); ++i) {
            const double value = m_pending[i];
            query.bindValue(int(i), m_integer[i % Width()] ? QVariant(qlonglong(value)) : QVariant(value));
        }
        m_pending.clear();
        if (!query.exec()) {
            m_error = query.lastError().text();
            return false;
        }
        return true;
    }

    const QString& Error() const { return m_error; }

private:
    QSqlQuery Prepare(int rows)
    {
        QSqlQuery query(m_database);
        query.prepare(m_statement + QStringList(rows, m_placeholders).join(','));
        return query;
    }

    QSqlDatabase& m_database;
    std::vector<bool> m_integer;
    QString m_statement;
    QString m_placeholders;
    QSqlQuery m_batch;
    std::vector<double> m_pending;
    QString m_error;
};

// What the summary keeps of one load case or combination.
struct SetSummary
{
    double maxDisplacement = 0.0; // mm
    double maxDisplacementNode = 0;
    Vector6 reactions {};
    double maxMoment = 0.0; // kNm, largest of |My| and |Mz|
    double maxMomentMember = 0;
};

class Writer
{
public:
    Writer(const AnalysisResults& results, SqliteConnection& connection,
           const ResultsWriter::Progress& progress)
        : m_results(results)
        , m_connection(connection)
        , m_progress(progress)
    {
        const auto& frame = results.Frame();
        const std::size_t sets = results.Sets().size();
        m_total = double(sets
                         * (frame.nodes.size() + frame.supports.size()
                            + frame.members.size() * (2 + ResultsSchema::c_stations)));
    }

    bool Run(QString& error)
    {
        QStringList schema { QStringLiteral(
                                 "CREATE TABLE result_sets (position INTEGER PRIMARY KEY, kind INTEGER, "
                                 "number INTEGER, name TEXT, max_displacement REAL, max_displacement_node "
                                 "INTEGER, reaction_fx REAL, reaction_fy REAL, reaction_fz REAL, max_moment "
                                 "REAL, max_moment_member INTEGER)"),
                             QStringLiteral("CREATE TABLE info (key TEXT PRIMARY KEY, value)") };
        for (ResultsTable table : c_allResultsTables)
            schema << ResultsSchema::CreateStatement(table);
        if (!m_connection.Execute(schema, &error) || !m_connection.Database().transaction()) {
            error = error.isEmpty() ? m_connection.LastError() : error;
            return false;
        }
        std::vector<SetSummary> summaries(m_results.Sets().size());
        const bool written = WriteDisplacements(summaries) && WriteReactions(summaries)
            && WriteMemberForces(summaries) && WriteSets(summaries);
        if (!written || !m_connection.Database().commit()) {
            error = m_stopped ? QString() : (m_error.isEmpty() ? m_connection.LastError() : m_error);
            m_connection.Database().rollback();
            return false;
        }
        return true;
    }

private:
    bool Advance(RowInserter& inserter, const std::vector<double>& row)
    {
        if (!inserter.Add(row)) {
            m_error = inserter.Error();
            return false;
        }
        if (++m_written % 16384 == 1 && m_progress && !m_progress(double(m_written) / m_total)) {
            m_stopped = true;
            return false;
        }
        return true;
    }

    bool Finish(RowInserter& inserter)
    {
        if (inserter.Flush())
            return true;
        m_error = inserter.Error();
        return false;
    }

    bool WriteDisplacements(std::vector<SetSummary>& summaries)
    {
        RowInserter inserter(m_connection.Database(), ResultsTable::NodeDisplacements);
        const auto& nodes = m_results.Frame().nodes;
        double row = 0;
        for (std::size_t set = 0; set < summaries.size(); ++set) {
            for (std::size_t node = 0; node < nodes.size(); ++node) {
                const Vector6 u = m_results.NodeDisplacement(set, node);
                const double length = std::sqrt(u[0] * u[0] + u[1] * u[1] + u[2] * u[2]) * c_milli;
                if (length > summaries[set].maxDisplacement) {
                    summaries[set].maxDisplacement = length;
                    summaries[set].maxDisplacementNode = nodes[node].number;
                }
                if (!Advance(inserter,
                             { row++, double(set), double(nodes[node].number), u[0] * c_milli, u[1] * c_milli,
                               u[2] * c_milli, u[3] * c_milli, u[4] * c_milli, u[5] * c_milli }))
                    return false;
            }
        }
        return Finish(inserter);
    }

    bool WriteReactions(std::vector<SetSummary>& summaries)
    {
        RowInserter inserter(m_connection.Database(), ResultsTable::SupportReactions);
        const auto& frame = m_results.Frame();
        double row = 0;
        for (std::size_t set = 0; set < summaries.size(); ++set) {
            for (std::size_t support = 0; support < frame.supports.size(); ++support) {
                const Vector6 r = m_results.Reaction(set, support);
                for (std::size_t i = 0; i < 6; ++i)
                    summaries[set].reactions[i] += r[i];
                const auto& record = frame.supports[support];
                if (!Advance(inserter,
                             { row++, double(set), double(record.number),
                               double(frame.nodes[std::size_t(record.node)].number), r[0], r[1], r[2], r[3],
                               r[4], r[5] }))
                    return false;
            }
        }
        return Finish(inserter);
    }

    bool WriteMemberForces(std::vector<SetSummary>& summaries)
    {
        RowInserter ends(m_connection.Database(), ResultsTable::MemberEndForces);
        RowInserter stations(m_connection.Database(), ResultsTable::MemberStationForces);
        const auto& members = m_results.Frame().members;
        double endRow = 0;
        double stationRow = 0;
        for (std::size_t set = 0; set < summaries.size(); ++set) {
            for (std::size_t member = 0; member < members.size(); ++member) {
                const auto endForces = m_results.MemberEndForces(set, member);
                const auto q = m_results.LineLoad(set, member);
                const double number = members[member].number;
                const double length = members[member].length;
                for (int station = 0; station < ResultsSchema::c_stations; ++station) {
                    const double x = length * station / (ResultsSchema::c_stations - 1);
                    const Vector6 f = Analysis::FrameMember::SectionForces(endForces, q, x);
                    const double moment = std::max(std::abs(f[4]), std::abs(f[5]));
                    if (moment > summaries[set].maxMoment) {
                        summaries[set].maxMoment = moment;
                        summaries[set].maxMomentMember = number;
                    }
                    if (!Advance(
                            stations,
                            { stationRow++, double(set), number, x, f[0], f[1], f[2], f[3], f[4], f[5] }))
                        return false;
                    const bool end = station == ResultsSchema::c_stations - 1;
                    if ((station == 0 || end)
                        && !Advance(ends,
                                    { endRow++, double(set), number, end ? 1.0 : 0.0, f[0], f[1], f[2], f[3],
                                      f[4], f[5] }))
                        return false;
                }
            }
        }
        return Finish(ends) && Finish(stations);
    }

    bool WriteSets(const std::vector<SetSummary>& summaries)
    {
        QSqlQuery query(m_connection.Database());
        query.prepare(QStringLiteral("INSERT INTO result_sets VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
        for (std::size_t set = 0; set < summaries.size(); ++set) {
            const auto& info = m_results.Sets()[set];
            const SetSummary& summary = summaries[set];
            const QVariantList values { qlonglong(set),
                                        int(info.kind),
                                        info.number,
                                        info.name,
                                        summary.maxDisplacement,
                                        qlonglong(summary.maxDisplacementNode),
                                        summary.reactions[0],
                                        summary.reactions[1],
                                        summary.reactions[2],
                                        summary.maxMoment,
                                        qlonglong(summary.maxMomentMember) };
            for (int i = 0; i < values.size(); ++i)
                query.bindValue(i, values[i]);
            if (!query.exec()) {
                m_error = query.lastError().text();
                return false;
            }
        }
        query.prepare(QStringLiteral("INSERT INTO info VALUES ('dofs', ?)"));
        query.bindValue(0, m_results.DegreesOfFreedom());
        if (!query.exec()) {
            m_error = query.lastError().text();
            return false;
        }
        return true;
    }

    const AnalysisResults& m_results;
    SqliteConnection& m_connection;
    const ResultsWriter::Progress& m_progress;
    double m_total = 1.0;
    std::int64_t m_written = 0;
    bool m_stopped = false;
    QString m_error;
};

} // namespace

bool ResultsWriter::Write(const AnalysisResults& results, const QString& path, const Progress& progress,
                          QString& error)
{
    error.clear();
    QFile::remove(path);
    bool written = false;
    {
        SqliteConnection connection(path);
        if (!connection.IsOpen()) {
            error = connection.LastError();
            return false;
        }
        // A scratch file written once: no journal, no waiting for the disk.
        if (!connection.Execute({ QStringLiteral("PRAGMA journal_mode = OFF"),
                                  QStringLiteral("PRAGMA synchronous = OFF"),
                                  QStringLiteral("PRAGMA cache_size = -65536") },
                                &error))
            return false;
        written = Writer(results, connection, progress).Run(error);
    }
    if (!written)
        QFile::remove(path);
    return written;
}

} // namespace Orvo::Kernel::Results
