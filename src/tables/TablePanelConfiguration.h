#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

namespace Orvo::UI::UIComponents {

struct TableColumnModelItem;

// What a table panel keeps of a user's way of working between sessions: the workstation shown,
// the open tabs of each workstation in their order with the selected one, and per table the order,
// widths and visibility of its columns. Stored by the host as one string (JSON); a string that
// is not one of ours gives the empty configuration, never an error.
class TablePanelConfiguration
{
public:
    struct Workstation
    {
        QStringList openTables; // in their order on screen
        QString selectedTable;
    };

    struct TableLayout
    {
        QStringList order; // every column the table had, in the user's order
        QStringList hidden;
        QHash<QString, int> widths;
    };

    static TablePanelConfiguration FromString(const QString& text);
    QString ToString() const;

    QString currentWorkstation;

    // Null when the workstation was never shown: its tabs open as the panel chooses.
    const Workstation* FindWorkstation(const QString& id) const;
    void SetWorkstation(const QString& id, Workstation workstation)
    {
        m_workstations.insert(id, std::move(workstation));
    }

    const TableLayout* FindLayout(const QString& tableId) const;
    void SetLayout(const QString& tableId, TableLayout layout)
    {
        m_layouts.insert(tableId, std::move(layout));
    }

    // The host's columns in the user's order and with the user's visibility: known columns as
    // stored, columns the table gained since at the end, columns it lost forgotten.
    static void Arrange(std::vector<TableColumnModelItem>& columns, const TableLayout& layout);

private:
    QHash<QString, Workstation> m_workstations;
    QHash<QString, TableLayout> m_layouts;
};

} // namespace Orvo::UI::UIComponents
