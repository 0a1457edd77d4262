#pragma once

#include "SpotlightModel.h"
#include "SpotlightProxyModel.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::Kernel::Framework {
class RunningCommand;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::UIComponents {

// The native half of the spotlight search: one field, opened by a shortcut, that finds
// commands, objects, tables and settings and answers calculations and coordinates. activate()
// does what the user chose: runs the command, selects the object, asks the application to
// show the table or the setting, copies the calculation's result, or hands the coordinates to
// the running command. The recent choices are its user configuration.
class Spotlight : public Orvo::UI::QtExtensions::UIComponent,
                  public Kernel::Framework::INeedEventbus,
                  public Kernel::Framework::INeedCommandRepository,
                  public Kernel::Framework::INeedUICommandProcessor
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Spotlight_Cpp)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::SpotlightModel* spotlightModel READ spotlightModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::SpotlightProxyModel* results READ results CONSTANT)
    // The name of the command that waits for input, empty when none does.
    Q_PROPERTY(QString runningCommandName READ runningCommandName NOTIFY runningCommandChanged)

public:
    static constexpr const wchar_t* c_origin = L"Spotlight";

    explicit Spotlight(QQuickItem* parent = nullptr);
    ~Spotlight() override;

    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    SpotlightModel* spotlightModel() const { return m_model; }
    SpotlightProxyModel* results() const { return m_results; }
    QString runningCommandName() const;

    // Does what the row of results stands for; false when nothing could be done (a disabled
    // command, coordinates the command does not take, a row that is not there).
    Q_INVOKABLE bool activate(int row);
    // Reads the commands, objects, tables and settings again (the search opens).
    Q_INVOKABLE void reload();

    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;
    bool isPersistent() const override;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;
    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;
    void SetUICommandProcessor(std::shared_ptr<Kernel::Framework::IUICommandProcessor> processor) override;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> GetUICommandProcessor() const override;

signals:
    void searchTextChanged();
    void runningCommandChanged();
    // The chosen object was selected in the model.
    void objectSelected(int objectId, const QString& title);
    void tableRequested(const QString& workstationId, const QString& tableId);
    void settingRequested(const QString& key);
    // A calculation's result went to the clipboard.
    void resultCopied(const QString& text);
    // The running command took the coordinates.
    void inputOffered(const QString& text);
    // Something was done: the search can close.
    void activated();

private:
    bool Activate(int row);

    QString m_searchText;
    SpotlightModel* m_model = nullptr;
    SpotlightProxyModel* m_results = nullptr;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_repository;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> m_processor;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_structuralModel;
    std::shared_ptr<Kernel::Framework::RunningCommand> m_runningCommand;
    Kernel::Framework::EventConnection m_runningConnection;
    Kernel::Framework::EventConnection m_stateConnection;
};

} // namespace Orvo::UI::UIComponents
