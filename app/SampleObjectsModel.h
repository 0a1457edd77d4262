#pragma once

#include "framework/EventConnection.h"
#include "properties/PropertyValue.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <unordered_set>

namespace Orvo::Kernel::Framework {
class StructuralModel;
}

// The demo's list of the structural model's objects of one kind, with their key values, which
// follow every edit, and the host's selection, which a click changes. Rows are the kind's table
// itself, so a model of a million members lists as fast as one of ten.
class SampleObjectsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SampleObjectsModel)
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY kindChanged)
    Q_PROPERTY(QStringList kinds READ kinds CONSTANT)
    Q_PROPERTY(QStringList kindNames READ kindNames CONSTANT)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)
    // The row of the object of the listed kind that joined the selection last, -1 when none:
    // where a list shows a selection made elsewhere (in the view, the tables).
    Q_PROPERTY(int lastSelectedRow READ lastSelectedRow NOTIFY lastSelectedRowChanged)

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

    QString kind() const;
    void setKind(const QString& kind);
    QStringList kinds() const;
    QStringList kindNames() const;
    int selectedCount() const;
    int lastSelectedRow() const;

    // A plain click selects the row alone, Ctrl toggles it, Shift extends from the last click.
    Q_INVOKABLE void click(int row, int modifiers);
    // Selects every object of the listed kind.
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();

signals:
    void kindChanged();
    void selectedCountChanged();
    void lastSelectedRowChanged();

private:
    void Reload();
    void OnSelectionChanged();
    void UpdateLastSelectedRow();
    void OnValuesChanged(const std::vector<Orvo::Kernel::Framework::ObjectId>& ids);
    Orvo::Kernel::Framework::ObjectId IdAt(int row) const;
    QString Summary(Orvo::Kernel::Framework::ObjectId id) const;

    std::shared_ptr<Orvo::Kernel::Framework::StructuralModel> m_model;
    Orvo::Kernel::Model::ObjectKind m_kind = Orvo::Kernel::Model::ObjectKind::Member;
    int m_rowCount = 0;
    std::unordered_set<Orvo::Kernel::Framework::ObjectId> m_selected;
    int m_anchorRow = -1;
    int m_lastSelectedRow = -1;
    Orvo::Kernel::Framework::EventConnection m_selectionConnection;
    Orvo::Kernel::Framework::EventConnection m_valuesConnection;
    Orvo::Kernel::Framework::EventConnection m_structureConnection;
    Orvo::Kernel::Framework::EventConnection m_unitsConnection;
};
