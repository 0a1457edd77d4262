#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The chosen items of a multi-select list, by key (the value of the role named keyRole, an
// item's identity that survives sorting and filtering). Keys of items that leave the model are
// dropped; selectedKeys lists the rest in the model's order. With multiple false at most one
// item is selected: selecting another replaces it.
class SelectionModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SelectionModel)
    Q_PROPERTY(QAbstractItemModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString keyRole READ keyRole WRITE setKeyRole NOTIFY keyRoleChanged)
    Q_PROPERTY(bool multiple READ isMultiple WRITE setMultiple NOTIFY multipleChanged)
    Q_PROPERTY(QVariantList selectedKeys READ selectedKeys WRITE setSelectedKeys NOTIFY selectionChanged)
    Q_PROPERTY(int count READ count NOTIFY selectionChanged)
    // Unchecked, PartiallyChecked or Checked: how a "select all" box over the whole model looks.
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY selectionChanged)

public:
    explicit SelectionModel(QObject* parent = nullptr);

    QAbstractItemModel* model() const { return m_model; }
    void setModel(QAbstractItemModel* model);
    QString keyRole() const { return m_keyRole; }
    void setKeyRole(const QString& keyRole);
    bool isMultiple() const { return m_multiple; }
    void setMultiple(bool multiple);
    QVariantList selectedKeys() const;
    void setSelectedKeys(const QVariantList& keys);
    int count() const { return int(m_keys.size()); }
    Qt::CheckState checkState() const;

    Q_INVOKABLE bool isSelected(const QVariant& key) const;
    Q_INVOKABLE void setSelected(const QVariant& key, bool selected);
    Q_INVOKABLE void toggle(const QVariant& key);
    // Selects or deselects several keys at once, with one change signal.
    Q_INVOKABLE void setKeysSelected(const QVariantList& keys, bool selected);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clear();
    // The texts (role textRole) of the selected items, in the model's order.
    Q_INVOKABLE QStringList selectedTexts(const QString& textRole) const;

    // The key of a row of the model; invalid without a model or a key role.
    QVariant KeyOfRow(int row) const;
    // The key of an item of any model that has the key role (a proxy of the model).
    QVariant KeyOf(const QModelIndex& index) const;

signals:
    void modelChanged();
    void keyRoleChanged();
    void multipleChanged();
    void selectionChanged();

private:
    static QString KeyText(const QVariant& key) { return key.toString(); }
    int RoleId(const QAbstractItemModel* model, const QString& roleName) const;
    QSet<QString> ModelKeys() const;
    // Forgets keys no longer in the model; signals when that changed the selection.
    void DropMissingKeys();

    QPointer<QAbstractItemModel> m_model;
    QString m_keyRole = QStringLiteral("display");
    bool m_multiple = true;
    // Selection order, for a selection made before (or without) a model.
    QVariantList m_order;
    QSet<QString> m_keys;
    QList<QMetaObject::Connection> m_modelConnections;
};

} // namespace Orvo::UI::UIComponents
