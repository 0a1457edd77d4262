#include "SelectionModel.h"

#include "CommonLogging.h"

namespace Orvo::UI::UIComponents {

SelectionModel::SelectionModel(QObject* parent)
    : QObject(parent)
{ }

void SelectionModel::setModel(QAbstractItemModel* model)
{
    if (m_model == model)
        return;
    for (const auto& connection : std::as_const(m_modelConnections))
        disconnect(connection);
    m_modelConnections.clear();
    m_model = model;
    if (m_model) {
        const auto drop = [this] { DropMissingKeys(); };
        m_modelConnections << connect(m_model, &QAbstractItemModel::rowsRemoved, this, drop)
                           << connect(m_model, &QAbstractItemModel::modelReset, this, drop)
                           << connect(m_model, &QAbstractItemModel::rowsInserted, this,
                                      &SelectionModel::selectionChanged)
                           << connect(m_model, &QAbstractItemModel::dataChanged, this, drop);
    }
    emit modelChanged();
    DropMissingKeys();
    emit selectionChanged();
}

void SelectionModel::setKeyRole(const QString& keyRole)
{
    if (m_keyRole == keyRole)
        return;
    m_keyRole = keyRole;
    emit keyRoleChanged();
    DropMissingKeys();
}

void SelectionModel::setMultiple(bool multiple)
{
    if (m_multiple == multiple)
        return;
    m_multiple = multiple;
    emit multipleChanged();
    if (!m_multiple && m_keys.size() > 1) {
        const QVariantList keys = selectedKeys();
        setSelectedKeys({ keys.first() });
    }
}

int SelectionModel::RoleId(const QAbstractItemModel* model, const QString& roleName) const
{
    return model ? model->roleNames().key(roleName.toUtf8(), -1) : -1;
}

QVariant SelectionModel::KeyOfRow(int row) const
{
    if (!m_model || row < 0 || row >= m_model->rowCount())
        return QVariant();
    return KeyOf(m_model->index(row, 0));
}

QVariant SelectionModel::KeyOf(const QModelIndex& index) const
{
    const int role = RoleId(index.model(), m_keyRole);
    return role < 0 ? QVariant() : index.data(role);
}

QVariantList SelectionModel::selectedKeys() const
{
    if (!m_model)
        return m_order;
    QVariantList keys;
    keys.reserve(m_keys.size());
    for (int row = 0; row < m_model->rowCount() && keys.size() < m_keys.size(); ++row) {
        const QVariant key = KeyOfRow(row);
        if (m_keys.contains(KeyText(key)))
            keys << key;
    }
    return keys;
}

void SelectionModel::setSelectedKeys(const QVariantList& keys)
{
    const bool checkModel = m_model && RoleId(m_model, m_keyRole) >= 0;
    const QSet<QString> modelKeys = checkModel ? ModelKeys() : QSet<QString>();
    QSet<QString> texts;
    QVariantList order;
    for (const QVariant& key : keys) {
        if (!key.isValid() || texts.contains(KeyText(key))
            || (checkModel && !modelKeys.contains(KeyText(key))))
            continue;
        texts.insert(KeyText(key));
        order << key;
        if (!m_multiple)
            break;
    }
    if (texts == m_keys)
        return;
    m_keys = texts;
    m_order = order;
    emit selectionChanged();
}

Qt::CheckState SelectionModel::checkState() const
{
    if (m_keys.isEmpty())
        return Qt::Unchecked;
    // Without a model nobody knows what "all" would be.
    if (!m_model || m_keys.size() < m_model->rowCount())
        return Qt::PartiallyChecked;
    return Qt::Checked;
}

bool SelectionModel::isSelected(const QVariant& key) const
{
    return key.isValid() && m_keys.contains(KeyText(key));
}

void SelectionModel::setSelected(const QVariant& key, bool selected)
{
    setKeysSelected({ key }, selected);
}

void SelectionModel::toggle(const QVariant& key)
{
    setSelected(key, !isSelected(key));
}

void SelectionModel::setKeysSelected(const QVariantList& keys, bool selected)
{
    QVariantList next = selected && m_multiple ? m_order : QVariantList();
    if (selected) {
        next << keys;
    } else {
        next = m_order;
        for (const QVariant& key : keys)
            next.removeIf([&](const QVariant& kept) { return KeyText(kept) == KeyText(key); });
    }
    // Single choice: the last key asked for wins.
    if (selected && !m_multiple && !keys.isEmpty())
        next = { keys.last() };
    setSelectedKeys(next);
}

void SelectionModel::selectAll()
{
    if (!m_model)
        return;
    QVariantList keys;
    for (int row = 0; row < m_model->rowCount(); ++row)
        keys << KeyOfRow(row);
    setKeysSelected(keys, true);
}

void SelectionModel::clear()
{
    setSelectedKeys({});
}

QStringList SelectionModel::selectedTexts(const QString& textRole) const
{
    QStringList texts;
    if (!m_model)
        return texts;
    const int role = RoleId(m_model, textRole);
    if (role < 0) {
        WarnAtComboBoxBoundary("SelectionModel",
                               QStringLiteral("the model has no role \"%1\"").arg(textRole));
        return texts;
    }
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (isSelected(KeyOfRow(row)))
            texts << m_model->index(row, 0).data(role).toString();
    }
    return texts;
}

QSet<QString> SelectionModel::ModelKeys() const
{
    QSet<QString> keys;
    for (int row = 0; row < m_model->rowCount(); ++row)
        keys.insert(KeyText(KeyOfRow(row)));
    return keys;
}

void SelectionModel::DropMissingKeys()
{
    if (!m_model || m_keys.isEmpty())
        return;
    if (m_model->rowCount() > 0 && RoleId(m_model, m_keyRole) < 0) {
        WarnAtComboBoxBoundary("SelectionModel",
                               QStringLiteral("the model has no key role \"%1\"").arg(m_keyRole));
        return;
    }
    const QSet<QString> present = ModelKeys() & m_keys;
    if (present == m_keys)
        return;
    m_keys = present;
    m_order.removeIf([&](const QVariant& key) { return !m_keys.contains(KeyText(key)); });
    emit selectionChanged();
}

} // namespace Orvo::UI::UIComponents
