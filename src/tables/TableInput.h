#pragma once

#include "TableContentModel.h"
#include "framework/EventConnection.h"
#include "qtextensions/UIComponent.h"

#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Tables {
class ITableInputTableData;
struct TableDataChangedEvent;
struct TableUpdateResult;
} // namespace Orvo::Kernel::Tables

namespace Orvo::UI::UIComponents {

// The native half of an input table panel: it feeds its content model from one of the host's
// input tables (tableId, such as "node") and hands what the user confirms back to it, so that
// typed cells, pastes, multi-edits, new rows and cell actions are each one step of the host's
// undo stack. It refills whenever the host says the table changed, which is how an undo or an
// edit made elsewhere (the properties panel) shows here.
class TableInput : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableInput_Cpp)
    Q_PROPERTY(QString tableId READ tableId WRITE setTableId NOTIFY tableIdChanged)
    Q_PROPERTY(QString label READ label NOTIFY tableIdChanged)
    // Every input table of the host, to choose from, with their labels in the same order.
    Q_PROPERTY(QStringList tableIds READ tableIds CONSTANT)
    Q_PROPERTY(QStringList tableLabels READ tableLabels CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::TableContentModel* contentModel READ contentModel CONSTANT)
    // Why the last confirmed edit was not taken in full, in the user's language; empty when it was.
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

public:
    static constexpr int c_defaultColumnWidth = 96;

    explicit TableInput(QQuickItem* parent = nullptr);
    ~TableInput() override;

    QString tableId() const { return m_tableId; }
    void setTableId(const QString& id);
    QString label() const;
    QStringList tableIds() const;
    QStringList tableLabels() const;
    TableContentModel* contentModel() { return &m_model; }
    QString message() const { return m_message; }

    // Deletes the objects of the rows; all or nothing, one undo step.
    Q_INVOKABLE bool removeRows(const QList<int>& rows);

signals:
    void tableIdChanged();
    void messageChanged();

private:
    std::vector<std::shared_ptr<Kernel::Tables::ITableInputTableData>> InputTables() const;
    void Connect();
    void OnTableDataChanged(const Kernel::Tables::TableDataChangedEvent& event);
    void OnAddColumnsRequest(const std::vector<QString>& ids);
    void OnRefillContentRequest();
    void OnSetRowsRequest(int index, int count, const std::vector<QString>& ids);
    void OnUpdateDataRequest(const TableContentUpdate& update);
    void OnExecuteActionRequest(int row, int column);
    void Report(const Kernel::Tables::TableUpdateResult& result);
    void SetMessage(const QString& message);

    TableContentModel m_model;
    QString m_tableId;
    std::shared_ptr<Kernel::Tables::ITableInputTableData> m_table;
    Kernel::Framework::EventConnection m_changedConnection;
    QString m_message;
};

} // namespace Orvo::UI::UIComponents
