#pragma once

#include "HostKitExport.h"

#include <QPointF>
#include <QQuickItem>
#include <QSizeF>
#include <QString>

namespace Orvo::UI::QtExtensions {

// Base of every panel's native half. When QML completes the item, the host hands it the user
// configuration it stored under configurationKey (by default the class name); when the item
// leaves its window or the application quits, a persistent panel's saveConfiguration() is
// stored again.
class HOSTKIT_EXPORT UIComponent : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QString configurationKey READ configurationKey WRITE setConfigurationKey NOTIFY
                   configurationKeyChanged)

public:
    explicit UIComponent(QQuickItem* parent = nullptr);
    ~UIComponent() override;

    // Invokable, so that a document can also hand a panel a configuration of its own choosing.
    Q_INVOKABLE virtual void loadConfiguration(const QString& userConfiguration);
    virtual QString saveConfiguration();
    virtual bool isPersistent() const;
    // Where and how large a floating panel opens within the available area.
    virtual QPointF calculatePosition(const QSizeF& available) const;
    virtual QSizeF calculateSize(const QSizeF& available) const;
    // True when the user has moved or resized the panel, so the stored geometry wins.
    virtual bool customUserSettingPosition() const;
    virtual bool customUserSettingSize() const;

    QString configurationKey() const;
    void setConfigurationKey(const QString& key);

    // Stores the current configuration now (the host also does it on destruction).
    Q_INVOKABLE void storeConfiguration();

signals:
    void configurationKeyChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QString m_configurationKey;
    bool m_configurationLoaded = false;
};

} // namespace Orvo::UI::QtExtensions
