#pragma once

#include "FilterBarItemModel.h"
#include "FilterBarItemProxyModel.h"
#include "InputPanelContainerModel.h"
#include "InputPanelContainerProxyModel.h"
#include "InputPanelUserConfiguration.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::Kernel::Framework {
class RunningCommand;
}

namespace Orvo::UI::UIComponents {

// The native half of the command input panel: while a command runs (New member, Move), its
// inputs as foldable containers of fields, a filter bar of container kinds, and Apply / Cancel.
// The user's folding, filter and the panel's place are kept in the user configuration and
// persist through loadConfiguration / saveConfiguration.
class InputPanel : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(InputPanel_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::InputPanelContainerModel* containerModel READ containerModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::InputPanelContainerProxyModel* containers READ containers CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::FilterBarItemModel* filterItemModel READ filterItemModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::FilterBarItemProxyModel* filterItems READ filterItems CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::InputPanelUserConfiguration* userConfiguration READ userConfiguration
                   CONSTANT)
    Q_PROPERTY(bool commandRunning READ commandRunning NOTIFY runningCommandChanged)
    Q_PROPERTY(QString commandName READ commandName NOTIFY runningCommandChanged)
    Q_PROPERTY(QString prompt READ prompt NOTIFY runningCommandChanged)

public:
    explicit InputPanel(QQuickItem* parent = nullptr);
    ~InputPanel() override;

    InputPanelContainerModel* containerModel() const { return m_containerModel; }
    InputPanelContainerProxyModel* containers() const { return m_containers; }
    FilterBarItemModel* filterItemModel() const { return m_filterItemModel; }
    FilterBarItemProxyModel* filterItems() const { return m_filterItems; }
    InputPanelUserConfiguration* userConfiguration() const { return m_userConfiguration; }
    bool commandRunning() const;
    QString commandName() const;
    QString prompt() const;

    // Apply hands the inputs to the command; Cancel ends it. Both false when nothing runs.
    Q_INVOKABLE bool apply();
    Q_INVOKABLE bool cancel();

    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;
    // What the user folds, filters and where the panel stands are theirs, kept between sessions.
    bool isPersistent() const override { return true; }
    bool customUserSettingPosition() const override;

    void SetRunningCommand(std::shared_ptr<Kernel::Framework::RunningCommand> command);
    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    void runningCommandChanged();

private:
    InputPanelUserConfiguration* m_userConfiguration;
    InputPanelContainerModel* m_containerModel;
    InputPanelContainerProxyModel* m_containers;
    FilterBarItemModel* m_filterItemModel;
    FilterBarItemProxyModel* m_filterItems;
    std::shared_ptr<Kernel::Framework::RunningCommand> m_command;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    Kernel::Framework::EventConnection m_commandConnection;
};

} // namespace Orvo::UI::UIComponents
