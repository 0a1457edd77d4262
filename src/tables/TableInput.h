#pragma once

#include "TablePanel.h"

#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Tables {
class ITableInputTableData;
struct TableUpdateResult;
} // namespace Orvo::Kernel::Tables

namespace Orvo::UI::UIComponents {

// The native half of an input table panel: the workstations of the host's input tables (the
// model, its loads), their tabs, and the shown table (tableId, such as "node"), whose edits it
// hands back to the host, so that typed cells, pastes, multi-edits, new rows and cell actions are
// each one step of the host's undo stack. It refills whenever the host says the table changed,
// which is how an undo or an edit made elsewhere (the properties panel) shows here.
class TableInput : public Orvo::UI::UIComponents::TablePanel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableInput_Cpp)
    // Every input table of the host, to choose from, with their labels in the same order.
    Q_PROPERTY(QStringList tableIds READ tableIds CONSTANT)
    Q_PROPERTY(QStringList tableLabels READ tableLabels CONSTANT)
    // Why the last confirmed edit was not taken in full, in the user's language; empty when it was.
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

public:
    explicit TableInput(QQuickItem* parent = nullptr);
    ~TableInput() override;

    QStringList tableIds() const;
    QStringList tableLabels() const;
    QString message() const { return m_message; }

    // Deletes the objects of the rows; all or nothing, one undo step.
    Q_INVOKABLE bool removeRows(const QList<int>& rows);

signals:
    void messageChanged();

protected:
    bool OffersWorkstation(const Kernel::Tables::TableWorkstation& workstation) const override;
    std::shared_ptr<Kernel::Tables::ITableData> FindTable(const QString& id) const override;
    void OnTableShown(const std::shared_ptr<Kernel::Tables::ITableData>& table) override;

private:
    std::vector<std::shared_ptr<Kernel::Tables::ITableInputTableData>> InputTables() const;
    void OnUpdateDataRequest(const TableContentUpdate& update);
    void OnExecuteActionRequest(int row, int column);
    // The objects of the selected rows become the host's selection (the properties panel shows them).
    void ShareSelection();
    void Report(const Kernel::Tables::TableUpdateResult& result);
    void SetMessage(const QString& message);

    std::shared_ptr<Kernel::Tables::ITableInputTableData> m_input;
    QString m_message;
};

} // namespace Orvo::UI::UIComponents
