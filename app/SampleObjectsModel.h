#pragma once

#include "framework/EventConnection.h"
#include "properties/PropertyValue.h"

#include <QAbstractListModel>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {
class StructuralModel;
class StructuralObject;
} // namespace Orvo::Kernel::Framework

// The demo's main view of the structural model: one row per object with its key values,
// which follow every edit, and the host's selection, which a click changes.
class SampleObjectsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)

public:
    enum Roles
    {
        numberRole = Qt::UserRole + 1,
        typeNameRole,
        nameRole,
        summaryRole,
        colorRole,
        selectedRole,
    };

    explicit SampleObjectsModel(QObject* parent = nullptr);
    ~SampleObjectsModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int selectedCount() const;

    // A plain click selects the row alone, Ctrl toggles it, Shift extends from the last click.
    Q_INVOKABLE void click(int row, int modifiers);
    // Selects every object of one kind ("node", "member", "loadCase"), or all with "".
    Q_INVOKABLE void selectKind(const QString& typeKey);
    Q_INVOKABLE void clearSelection();

signals:
    void selectedCountChanged();

private:
    void Reload();
    void RefreshRows(const std::vector<Orvo::Kernel::Framework::ObjectId>& ids, const QList<int>& roles);
    QString Summary(const Orvo::Kernel::Framework::StructuralObject& object) const;
    int RowOf(Orvo::Kernel::Framework::ObjectId id) const;

    std::shared_ptr<Orvo::Kernel::Framework::StructuralModel> m_model;
    std::vector<Orvo::Kernel::Framework::ObjectId> m_rows;
    int m_anchorRow = -1;
    Orvo::Kernel::Framework::EventConnection m_selectionConnection;
    Orvo::Kernel::Framework::EventConnection m_valuesConnection;
    Orvo::Kernel::Framework::EventConnection m_structureConnection;
};
