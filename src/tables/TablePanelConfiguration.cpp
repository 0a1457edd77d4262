#include "TablePanelConfiguration.h"

#include "TableColumnsModel.h"
#include "TablesLogging.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace Orvo::UI::UIComponents {

namespace {

const QString c_workstation = QStringLiteral("workstation");
const QString c_workstations = QStringLiteral("workstations");
const QString c_open = QStringLiteral("open");
const QString c_selected = QStringLiteral("selected");
const QString c_tables = QStringLiteral("tables");
const QString c_columns = QStringLiteral("columns");
const QString c_id = QStringLiteral("id");
const QString c_visible = QStringLiteral("visible");
const QString c_width = QStringLiteral("width");

QStringList Texts(const QJsonValue& value)
{
    QStringList texts;
    for (const QJsonValue& item : value.toArray()) {
        if (item.isString() && !texts.contains(item.toString()))
            texts << item.toString();
    }
    return texts;
}

} // namespace

TablePanelConfiguration TablePanelConfiguration::FromString(const QString& text)
{
    TablePanelConfiguration configuration;
    if (text.trimmed().isEmpty())
        return configuration;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (!document.isObject()) {
        qCWarning(lcTables).noquote() << "Table panel configuration ignored:" << error.errorString();
        return configuration;
    }
    const QJsonObject root = document.object();
    configuration.currentWorkstation = root.value(c_workstation).toString();
    const QJsonObject workstations = root.value(c_workstations).toObject();
    for (auto it = workstations.begin(); it != workstations.end(); ++it) {
        const QJsonObject object = it.value().toObject();
        configuration.m_workstations.insert(
            it.key(), { Texts(object.value(c_open)), object.value(c_selected).toString() });
    }
    const QJsonObject tables = root.value(c_tables).toObject();
    for (auto it = tables.begin(); it != tables.end(); ++it) {
        TableLayout layout;
        for (const QJsonValue& value : it.value().toObject().value(c_columns).toArray()) {
            const QJsonObject column = value.toObject();
            const QString id = column.value(c_id).toString();
            if (id.isEmpty() || layout.order.contains(id))
                continue;
            layout.order << id;
            if (!column.value(c_visible).toBool(true))
                layout.hidden << id;
            const int width = column.value(c_width).toInt(0);
            if (width > 0)
                layout.widths.insert(id, width);
        }
        configuration.m_layouts.insert(it.key(), std::move(layout));
    }
    return configuration;
}

QString TablePanelConfiguration::ToString() const
{
    QJsonObject workstations;
    for (auto it = m_workstations.begin(); it != m_workstations.end(); ++it)
        workstations.insert(it.key(),
                            QJsonObject { { c_open, QJsonArray::fromStringList(it->openTables) },
                                          { c_selected, it->selectedTable } });
    QJsonObject tables;
    for (auto it = m_layouts.begin(); it != m_layouts.end(); ++it) {
        QJsonArray columns;
        for (const QString& id : it->order) {
            QJsonObject column { { c_id, id }, { c_visible, !it->hidden.contains(id) } };
            if (it->widths.contains(id))
                column.insert(c_width, it->widths.value(id));
            columns.append(column);
        }
        tables.insert(it.key(), QJsonObject { { c_columns, columns } });
    }
    const QJsonObject root { { c_workstation, currentWorkstation },
                             { c_workstations, workstations },
                             { c_tables, tables } };
    return QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Compact));
}

const TablePanelConfiguration::Workstation* TablePanelConfiguration::FindWorkstation(const QString& id) const
{
    const auto it = m_workstations.constFind(id);
    return it == m_workstations.cend() ? nullptr : &*it;
}

const TablePanelConfiguration::TableLayout* TablePanelConfiguration::FindLayout(const QString& tableId) const
{
    const auto it = m_layouts.constFind(tableId);
    return it == m_layouts.cend() ? nullptr : &*it;
}

void TablePanelConfiguration::Arrange(std::vector<TableColumnModelItem>& columns, const TableLayout& layout)
{
    const auto place = [&layout](const TableColumnModelItem& column) {
        const auto index = layout.order.indexOf(column.id);
        return index < 0 ? layout.order.size() : index;
    };
    std::stable_sort(columns.begin(), columns.end(),
                     [&place](const auto& left, const auto& right) { return place(left) < place(right); });
    for (TableColumnModelItem& column : columns)
        column.visible = !layout.hidden.contains(column.id);
}

} // namespace Orvo::UI::UIComponents
