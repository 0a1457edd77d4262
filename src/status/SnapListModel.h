#pragma once

#include "framework/EventConnection.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::UIComponents {

// The object snaps, one row each: which points the pointer snaps to in the model views. Each is
// a setting of the user's (so the views' picking and every status bar agree) with a shortcut
// that toggles it.
class SnapListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Roles
    {
        SnapIdRole = Qt::UserRole + 1,
        NameRole,
        DescriptionRole,
        EnabledRole,
        ShortcutRole,
    };
    Q_ENUM(Roles)

    struct Snap
    {
        QString id;
        QString settingKey;
        QString nameId;
        QString descriptionId;
        QString shortcut;
        bool enabledByDefault;
    };
    static const std::vector<Snap>& Snaps();

    explicit SnapListModel(QObject* parent = nullptr);
    ~SnapListModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool IsEnabled(int row) const;
    bool SetEnabled(int row, bool enabled);
    int FindRow(const QString& snapId) const;

private:
    void OnSettingChanged(const QString& key);

    std::shared_ptr<DataModel::Settings> m_settings;
    // Without the host's settings the choices live here.
    std::vector<bool> m_enabled;
    Kernel::Framework::EventConnection m_settingConnection;
};

} // namespace Orvo::UI::UIComponents
