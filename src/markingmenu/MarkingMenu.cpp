#include "MarkingMenu.h"

#include "MarkingMenuConfigXmlHandler.h"
#include "MarkingMenuLogging.h"
#include "events/ShowMarkingMenuEvent.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"
#include "framework/OnIdleEvent.h"
#include "framework/ServiceCatalog.h"
#include "framework/XMLHandler.h"
#include "kernel/Directories.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <functional>
#include <stdexcept>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;
using namespace std::placeholders;

MarkingMenu::MarkingMenu(QQuickItem* parent)
    : UIComponent(parent)
{
    QQmlEngine::setObjectOwnership(&m_commandHelper, QQmlEngine::CppOwnership);
    SetEventbus(ServiceCatalog::Global()->Get<EventBus>());
    m_commandHelper.setComponentTrackingID(QStringLiteral("MarkingMenu"));
}

MarkingMenu::~MarkingMenu() = default;

CommandMenuHelper* MarkingMenu::commandHelper()
{
    return &m_commandHelper;
}

MarkingMenuConfig* MarkingMenu::mmConfig() const
{
    return m_mmConfig.get();
}

double MarkingMenu::cx() const
{
    return m_cx;
}

double MarkingMenu::cy() const
{
    return m_cy;
}

bool MarkingMenu::getPrimaryMouseButtonStatus() const
{
    // Qt reports the button the user holds to open the menu as the right button also when the
    // system swaps the buttons for a left-handed user: the logical secondary button.
    return QGuiApplication::mouseButtons().testFlag(Qt::RightButton);
}

void MarkingMenu::loadConfiguration(const QString& userConfiguration)
{
    try {
        const auto path
            = Kernel::Directories::GetDirectory(Kernel::Directories::DirectoryType::ApplicationDirectory)
            / "Configuration" / "MarkingMenu.xml";
        XMLHandler document;
        if (!document.LoadFile(path))
            throw std::invalid_argument("Failed to load MarkingMenu XML configuration.");
        m_mmConfig = MarkingMenuConfigXmlHandler::FromXml(document);
        MarkingMenuConfigXmlHandler::FromUserConfigXml(*m_mmConfig, userConfiguration.toStdWString());
    } catch (const std::exception& error) {
        DebugOutput(error.what());
        m_mmConfig = std::make_unique<MarkingMenuConfig>();
    }
    QQmlEngine::setObjectOwnership(m_mmConfig.get(), QQmlEngine::CppOwnership);
}

void MarkingMenu::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    if (eventbus) {
        m_showConnection = eventbus->Subscribe<Events::ShowMarkingMenuEvent>(
            std::bind(&MarkingMenu::OnShowMarkingMenu, this, _1));
        m_idleConnection = eventbus->Subscribe<OnIdleEvent>(std::bind(&MarkingMenu::OnIdle, this, _1));
    } else {
        m_showConnection.Disconnect();
        m_idleConnection.Disconnect();
    }
    m_eventbus = std::move(eventbus);
}

std::shared_ptr<EventBus> MarkingMenu::GetEventbus() const
{
    return m_eventbus;
}

int MarkingMenu::ShowState() const
{
    return m_showState;
}

void MarkingMenu::OnShowMarkingMenu(const Events::ShowMarkingMenuEvent& event)
{
    if (!event.GetShow()) {
        m_showState = 0;
        emit hideMarkingMenu();
        return;
    }
    if (!m_mmConfig || !m_mmConfig->HasVisibleSection()) {
        qCDebug(lcMarkingMenu) << "Show request ignored: no section of the marking menu is visible";
        return;
    }
    m_cx = event.GetX();
    emit cxChanged();
    m_cy = event.GetY();
    emit cyChanged();
    m_showState = 2;
}

void MarkingMenu::OnIdle(const OnIdleEvent&)
{
    const bool pending = m_showState != 0;
    m_showState = m_showState == 2 ? 1 : 0;
    if (pending && m_showState == 0)
        emit showMarkingMenu();
}

} // namespace Orvo::UI::UIComponents
