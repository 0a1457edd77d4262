#pragma once

#include "MarkingMenuConfig.h"
#include "commands/CommandMenuHelper.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Framework {
struct OnIdleEvent;
}

namespace Orvo::UI::Events {
class ShowMarkingMenuEvent;
}

namespace Orvo::UI::UIComponents {

// The native half of the radial marking menu. The host asks for the menu on its event bus; the
// menu opens on the second idle turn after the request, so a quick click (the release arrives
// before then) never opens it. QML draws the menu and runs the chosen command.
// The base is named in full: the QML type description finds base classes by their full name.
class MarkingMenu : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MarkingMenu_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::CommandMenuHelper* commandHelper READ commandHelper NOTIFY
                   commandHelperChanged)
    // Replaced without a signal by loadConfiguration: QML reads it when the menu opens.
    Q_PROPERTY(Orvo::UI::UIComponents::MarkingMenuConfig* mmConfig READ mmConfig NOTIFY mmConfigChanged)
    Q_PROPERTY(double cx READ cx NOTIFY cxChanged)
    Q_PROPERTY(double cy READ cy NOTIFY cyChanged)

public:
    explicit MarkingMenu(QQuickItem* parent = nullptr);
    ~MarkingMenu() override;

    CommandMenuHelper* commandHelper();
    MarkingMenuConfig* mmConfig() const;
    double cx() const;
    double cy() const;

    // True while the logical secondary button, the one held to open the menu, is down.
    Q_INVOKABLE bool getPrimaryMouseButtonStatus() const;

    // userConfiguration is the user variant of the marking menu XML, applied on top of the
    // shipped Configuration/MarkingMenu.xml. Any error leaves a menu that never opens.
    void loadConfiguration(const QString& userConfiguration) override;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

    // 0 nothing pending, 2 show requested, 1 one idle turn seen since.
    int ShowState() const;

signals:
    void showMarkingMenu();
    void hideMarkingMenu();
    void markingMenuTimeout();
    void commandHelperChanged();
    void mmConfigChanged();
    void cxChanged();
    void cyChanged();

private:
    void OnShowMarkingMenu(const Events::ShowMarkingMenuEvent& event);
    void OnIdle(const Kernel::Framework::OnIdleEvent& event);

    CommandMenuHelper m_commandHelper;
    std::unique_ptr<MarkingMenuConfig> m_mmConfig;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    Kernel::Framework::EventConnection m_showConnection;
    Kernel::Framework::EventConnection m_idleConnection;
    int m_showState = 0;
    double m_cx = 0.0;
    double m_cy = 0.0;
};

} // namespace Orvo::UI::UIComponents
