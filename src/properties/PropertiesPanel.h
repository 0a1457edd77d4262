#pragma once

#include "ActionsModel.h"
#include "EntityModel.h"
#include "IllustrationData.h"
#include "PropertiesModel.h"
#include "PropertiesPanelUserConfiguration.h"
#include "PropertiesProxyModel.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {
class StructuralModel;
struct SelectionChangedEvent;
struct ObjectValuesChangedEvent;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::UIComponents {

// The native half of the properties panel: follows the host's selection, lists the
// properties of the selected objects through the filtering proxy, writes edits back to every
// selected object, and keeps the user's folded categories and basic/advanced mode.
// The base is named in full: the QML type description finds base classes by their full name.
class PropertiesPanel : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PropertiesPanel_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::PropertiesProxyModel* propertiesModel READ propertiesModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::PropertiesModel* sourceModel READ sourceModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::EntityModel* entityModel READ entityModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::ActionsModel* actionsModel READ actionsModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::IllustrationData* illustration READ illustration CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::PropertiesPanelUserConfiguration* userConfiguration READ
                   userConfiguration CONSTANT)
    Q_PROPERTY(bool inBasicMode READ isInBasicMode WRITE setInBasicMode NOTIFY inBasicModeChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    // Why the model refused the last edit; empty after an accepted one or another selection.
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

public:
    explicit PropertiesPanel(QQuickItem* parent = nullptr);
    ~PropertiesPanel() override;

    PropertiesProxyModel* propertiesModel() const { return m_proxy; }
    PropertiesModel* sourceModel() const { return m_properties; }
    EntityModel* entityModel() const { return m_entities; }
    ActionsModel* actionsModel() const { return m_actions; }
    IllustrationData* illustration() const { return m_illustration; }
    PropertiesPanelUserConfiguration* userConfiguration() const { return m_configuration; }

    bool isInBasicMode() const;
    void setInBasicMode(bool inBasicMode);
    int selectedCount() const { return static_cast<int>(m_selection.size()); }
    QString title() const { return m_title; }
    QString message() const { return m_message; }

    Q_INVOKABLE void toggleCategory(const QString& category);
    Q_INVOKABLE void expandAll();
    Q_INVOKABLE bool setValue(const QVariant& value, const QString& uuid,
                              int action = PropertiesModel::NoAction);
    Q_INVOKABLE bool runAction(int row);
    // Shows the illustration of the property, or none when it has none.
    Q_INVOKABLE void showIllustration(const QString& uuid);

    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;
    bool isPersistent() const override { return true; }

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override { return m_eventbus; }

signals:
    void inBasicModeChanged();
    void selectionChanged();
    void titleChanged();
    void messageChanged();

private:
    void OnSelectionChanged(const Kernel::Framework::SelectionChangedEvent& event);
    void OnObjectValuesChanged(const Kernel::Framework::ObjectValuesChangedEvent& event);
    void ShowSelection(const std::vector<Kernel::Framework::ObjectId>& selection);
    void ShowCurrentEntity();
    void ApplyCollapsedCategories(const QStringList& categories);
    void UpdateTitle();
    void SetMessage(const QString& message);

    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_structuralModel;
    std::shared_ptr<std::vector<QString>> m_collapsedCategories;
    std::vector<Kernel::Framework::ObjectId> m_selection;
    QString m_title;
    QString m_message;
    QString m_illustrationUuid;
    PropertiesModel* m_properties;
    PropertiesProxyModel* m_proxy;
    EntityModel* m_entities;
    ActionsModel* m_actions;
    IllustrationData* m_illustration;
    PropertiesPanelUserConfiguration* m_configuration;
    Kernel::Framework::EventConnection m_selectionConnection;
    Kernel::Framework::EventConnection m_valuesConnection;
};

} // namespace Orvo::UI::UIComponents
