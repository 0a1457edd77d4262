#include "ResultsSchema.h"

#include <QStringList>

namespace Orvo::Kernel::Results {

namespace {

using Kind = ResultsColumn::Kind;

ResultsColumn Value(const char* name, const char* labelId, const char* unit, int decimals)
{
    return { QString::fromLatin1(name), QString::fromLatin1(labelId), Kind::Value, QString::fromUtf8(unit),
             decimals };
}

ResultsColumn Set()
{
    return { QStringLiteral("result_set"), QStringLiteral("UI_RESULTS_SET"), Kind::ResultSet, {}, 0 };
}

ResultsColumn Number(const char* name, const char* labelId)
{
    return { QString::fromLatin1(name), QString::fromLatin1(labelId), Kind::Number, {}, 0 };
}

std::vector<ResultsColumn> Forces(std::vector<ResultsColumn> columns)
{
    columns.push_back(Value("n", "UI_RESULTS_N", "kN", 2));
    columns.push_back(Value("vy", "UI_RESULTS_VY", "kN", 2));
    columns.push_back(Value("vz", "UI_RESULTS_VZ", "kN", 2));
    columns.push_back(Value("t", "UI_RESULTS_T", "kNm", 2));
    columns.push_back(Value("my", "UI_RESULTS_MY", "kNm", 2));
    columns.push_back(Value("mz", "UI_RESULTS_MZ", "kNm", 2));
    return columns;
}

} // namespace

QString ResultsSchema::TableName(ResultsTable table)
{
    switch (table) {
    case ResultsTable::NodeDisplacements:
        return QStringLiteral("node_displacements");
    case ResultsTable::SupportReactions:
        return QStringLiteral("support_reactions");
    case ResultsTable::MemberEndForces:
        return QStringLiteral("member_end_forces");
    case ResultsTable::MemberStationForces:
        return QStringLiteral("member_station_forces");
    }
    return {};
}

QString ResultsSchema::LabelId(ResultsTable table)
{
    switch (table) {
    case ResultsTable::NodeDisplacements:
        return QStringLiteral("UI_RESULTS_TABLE_NODE_DISPLACEMENTS");
    case ResultsTable::SupportReactions:
        return QStringLiteral("UI_RESULTS_TABLE_SUPPORT_REACTIONS");
    case ResultsTable::MemberEndForces:
        return QStringLiteral("UI_RESULTS_TABLE_MEMBER_END_FORCES");
    case ResultsTable::MemberStationForces:
        return QStringLiteral("UI_RESULTS_TABLE_MEMBER_STATION_FORCES");
    }
    return {};
}

const std::vector<ResultsColumn>& ResultsSchema::Columns(ResultsTable table)
{
    static const std::vector<ResultsColumn> displacements {
        Set(),
        Number("node", "UI_OBJECT_NODE"),
        Value("ux", "UI_RESULTS_UX", "mm", 3),
        Value("uy", "UI_RESULTS_UY", "mm", 3),
        Value("uz", "UI_RESULTS_UZ", "mm", 3),
        Value("rx", "UI_RESULTS_RX", "mrad", 3),
        Value("ry", "UI_RESULTS_RY", "mrad", 3),
        Value("rz", "UI_RESULTS_RZ", "mrad", 3),
    };
    static const std::vector<ResultsColumn> reactions {
        Set(),
        Number("support", "UI_OBJECT_SUPPORT"),
        Number("node", "UI_OBJECT_NODE"),
        Value("fx", "UI_RESULTS_FX", "kN", 2),
        Value("fy", "UI_RESULTS_FY", "kN", 2),
        Value("fz", "UI_RESULTS_FZ", "kN", 2),
        Value("mx", "UI_RESULTS_MX", "kNm", 2),
        Value("my", "UI_RESULTS_MY", "kNm", 2),
        Value("mz", "UI_RESULTS_MZ", "kNm", 2),
    };
    static const std::vector<ResultsColumn> ends = Forces({
        Set(),
        Number("member", "UI_OBJECT_MEMBER"),
        { QStringLiteral("member_end"), QStringLiteral("UI_RESULTS_END"), Kind::End, {}, 0 },
    });
    static const std::vector<ResultsColumn> stations = Forces({
        Set(),
        Number("member", "UI_OBJECT_MEMBER"),
        Value("x", "UI_RESULTS_X", "m", 3),
    });
    switch (table) {
    case ResultsTable::NodeDisplacements:
        return displacements;
    case ResultsTable::SupportReactions:
        return reactions;
    case ResultsTable::MemberEndForces:
        return ends;
    case ResultsTable::MemberStationForces:
        break;
    }
    return stations;
}

QString ResultsSchema::CreateStatement(ResultsTable table)
{
    QStringList columns { QStringLiteral("row INTEGER PRIMARY KEY") };
    for (const ResultsColumn& column : Columns(table))
        columns << column.name
                + (column.kind == Kind::Value ? QStringLiteral(" REAL") : QStringLiteral(" INTEGER"));
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(TableName(table), columns.join(QStringLiteral(", ")));
}

} // namespace Orvo::Kernel::Results
