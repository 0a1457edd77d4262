#pragma once

#include "framework/EventConnection.h"

#include <QHash>
#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::UIComponents {

// The local user's profile: the name and organisation shown on the account button and written
// into reports, and the initials of the avatar. Kept in the user's settings, so that every
// window and the next session show the same profile.
class AccountDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(AccountDataModel)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString organisation READ organisation WRITE setOrganisation NOTIFY organisationChanged)
    // The avatar's letters: those the user set, else derived from the name ("Ada Lovelace" gives
    // "AL"); empty for a user without a name. Setting an empty text goes back to derived ones.
    Q_PROPERTY(QString initials READ initials WRITE setInitials NOTIFY initialsChanged)
    // Whether the initials are the user's own rather than derived from the name.
    Q_PROPERTY(bool customInitials READ customInitials NOTIFY initialsChanged)

public:
    explicit AccountDataModel(QObject* parent = nullptr);
    ~AccountDataModel() override;

    QString name() const;
    void setName(const QString& name);
    QString organisation() const;
    void setOrganisation(const QString& organisation);
    QString initials() const;
    void setInitials(const QString& initials);
    bool customInitials() const;

    // The first letter of the first and of the last word, upper case.
    static QString DeriveInitials(const QString& name);

signals:
    void nameChanged();
    void organisationChanged();
    void initialsChanged();

private:
    QString Stored(const QString& key) const;
    void Store(const QString& key, const QString& value);
    void OnSettingChanged(const QString& key);

    std::shared_ptr<DataModel::Settings> m_settings;
    // Without the host's settings the profile lives here, for this object only.
    QHash<QString, QString> m_values;
    Kernel::Framework::EventConnection m_settingConnection;
};

} // namespace Orvo::UI::UIComponents
