#include "UIComponent.h"

#include "ComponentConfigurationStore.h"
#include "framework/Debug.h"
#include "framework/ServiceCatalog.h"

#include <QCoreApplication>
#include <exception>

namespace Orvo::UI::QtExtensions {

namespace {
std::shared_ptr<ComponentConfigurationStore> Store()
{
    return Kernel::Framework::ServiceCatalog::Global()->Get<ComponentConfigurationStore>();
}
} // namespace

UIComponent::UIComponent(QQuickItem* parent)
    : QQuickItem(parent)
{ }

UIComponent::~UIComponent() = default;

void UIComponent::loadConfiguration(const QString&) { }

QString UIComponent::saveConfiguration()
{
    return {};
}

bool UIComponent::isPersistent() const
{
    return false;
}

QPointF UIComponent::calculatePosition(const QSizeF& available) const
{
    const QSizeF size = calculateSize(available);
    return { (available.width() - size.width()) / 2.0, (available.height() - size.height()) / 2.0 };
}

QSizeF UIComponent::calculateSize(const QSizeF& available) const
{
    const QSizeF implicit(implicitWidth(), implicitHeight());
    if (implicit.isEmpty())
        return available;
    return implicit.boundedTo(available);
}

bool UIComponent::customUserSettingPosition() const
{
    return false;
}

bool UIComponent::customUserSettingSize() const
{
    return false;
}

QString UIComponent::configurationKey() const
{
    return m_configurationKey.isEmpty() ? QString::fromLatin1(metaObject()->className()) : m_configurationKey;
}

void UIComponent::setConfigurationKey(const QString& key)
{
    if (m_configurationKey == key)
        return;
    m_configurationKey = key;
    emit configurationKeyChanged();
}

void UIComponent::storeConfiguration()
{
    if (!m_configurationLoaded || !isPersistent())
        return;
    try {
        if (auto store = Store())
            store->Store(configurationKey(), saveConfiguration());
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("%1: %2").arg(configurationKey(), QString::fromUtf8(error.what())));
    }
}

void UIComponent::componentComplete()
{
    QQuickItem::componentComplete();
    QString configuration;
    if (auto store = Store())
        configuration = store->Load(configurationKey());
    try {
        loadConfiguration(configuration);
    } catch (const std::exception& error) {
        Kernel::Framework::DebugOutput(
            QStringLiteral("%1: %2").arg(configurationKey(), QString::fromUtf8(error.what())));
    }
    m_configurationLoaded = true;
    // Derived panels are already gone in our destructor, so store while they are whole:
    // when the item leaves its window and when the application quits.
    if (QCoreApplication::instance())
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
                &UIComponent::storeConfiguration);
}

void UIComponent::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemSceneChange && data.window == nullptr && m_configurationLoaded)
        storeConfiguration();
    QQuickItem::itemChange(change, data);
}

} // namespace Orvo::UI::QtExtensions
