#include "Notifications.h"

#include "NotificationsLogging.h"
#include "analysis/AnalysisEvents.h"
#include "document/ModelDocumentEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

Notifications::Notifications(QQuickItem* parent)
    : UIComponent(parent)
    , m_model(new NotificationsModel(this))
    , m_buttons(new NotificationsButtonsSelectionModel(this))
    , m_filtered(new NotificationsFilterModel(this))
    , m_toasts(new NotificationsFilterModel(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setSelectionModel(m_buttons);
    // Toasts show every new message, whatever the centre's buttons say.
    m_toasts->setSourceModel(m_model);
    m_toasts->setToastsOnly(true);
    auto catalog = ServiceCatalog::Global();
    m_structuralModel = catalog->Get<StructuralModel>();
    catalog->Inject(*this);
}

Notifications::~Notifications() = default;

bool Notifications::activate(int notificationId, const QString& actionKey)
{
    return CatchAtNotificationsBoundary("Notification action", false,
                                        [&] { return Activate(notificationId, actionKey); });
}

bool Notifications::Activate(int notificationId, const QString& actionKey)
{
    const NotificationsModel::Notification* entry = m_model->Find(notificationId);
    if (!entry)
        return false;
    const bool offered
        = std::any_of(entry->actions.begin(), entry->actions.end(),
                      [&](const NotificationsModel::Action& action) { return action.key == actionKey; });
    if (!offered)
        return false;
    const int objectId = entry->objectId;
    m_model->markRead(m_model->RowOf(notificationId));
    if (actionKey == c_showResultsAction) {
        emit resultsRequested();
        return true;
    }
    if (actionKey == c_selectObjectAction) {
        // The object may have been removed since the message came.
        if (!m_structuralModel || !m_structuralModel->Exists(objectId))
            return false;
        m_structuralModel->Select({ objectId });
        emit objectSelected(objectId);
        return true;
    }
    return false;
}

void Notifications::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_analysisConnection = EventConnection();
        m_designConnection = EventConnection();
        m_rejectionConnection = EventConnection();
        m_fileSavedConnection = EventConnection();
        m_fileOpenedConnection = EventConnection();
        m_fileFailedConnection = EventConnection();
        return;
    }
    m_analysisConnection
        = m_eventbus->Subscribe<Kernel::Analysis::AnalysisFinishedEvent>([this](const auto& event) {
              // A stop the user asked for is no news to the user.
              if (event.cancelled)
                  return;
              if (event.succeeded) {
                  m_model->Add(
                      NotificationsModel::Success, GetText(QStringLiteral("UI_NOTIFICATIONS_ANALYSIS_DONE")),
                      event.message,
                      { { c_showResultsAction, GetText(QStringLiteral("UI_NOTIFICATIONS_SHOW_RESULTS")) } });
                  return;
              }
              std::vector<NotificationsModel::Action> actions;
              if (event.object != 0)
                  actions.push_back(
                      { c_selectObjectAction, GetText(QStringLiteral("UI_NOTIFICATIONS_SELECT_OBJECT")) });
              m_model->Add(NotificationsModel::Error,
                           GetText(QStringLiteral("UI_NOTIFICATIONS_ANALYSIS_FAILED")), event.message,
                           std::move(actions), event.object);
          });
    m_designConnection
        = m_eventbus->Subscribe<Kernel::Analysis::DesignCheckedEvent>([this](const auto& event) {
              if (event.passes) {
                  m_model->Add(NotificationsModel::Success,
                               GetText(QStringLiteral("UI_NOTIFICATIONS_DESIGN_PASSED")), event.message, {});
                  return;
              }
              std::vector<NotificationsModel::Action> actions;
              if (event.governingMember != 0)
                  actions.push_back(
                      { c_selectObjectAction, GetText(QStringLiteral("UI_NOTIFICATIONS_SELECT_OBJECT")) });
              m_model->Add(NotificationsModel::Warning,
                           GetText(QStringLiteral("UI_NOTIFICATIONS_DESIGN_FAILED")), event.message,
                           std::move(actions), event.governingMember);
          });
    m_rejectionConnection = m_eventbus->Subscribe<EditRejectedEvent>([this](const EditRejectedEvent& event) {
        std::vector<NotificationsModel::Action> actions;
        if (event.object != 0)
            actions.push_back(
                { c_selectObjectAction, GetText(QStringLiteral("UI_NOTIFICATIONS_SELECT_OBJECT")) });
        m_model->Add(NotificationsModel::Warning, GetText(QStringLiteral("UI_NOTIFICATIONS_EDIT_REFUSED")),
                     event.message, std::move(actions), event.object);
    });
    m_fileSavedConnection = m_eventbus->Subscribe<ModelFileSavedEvent>(
        [this](const ModelFileSavedEvent& event) {
            m_model->Add(
                NotificationsModel::Success,
                GetText(QStringLiteral("UI_NOTIFICATIONS_FILE_SAVED")).arg(QFileInfo(event.path).fileName()),
                QDir::toNativeSeparators(event.path));
        });
    m_fileOpenedConnection = m_eventbus->Subscribe<ModelFileOpenedEvent>(
        [this](const ModelFileOpenedEvent& event) {
            // Opening replaced the model: say how to get the previous one back.
            m_model->Add(
                NotificationsModel::Information,
                GetText(QStringLiteral("UI_NOTIFICATIONS_FILE_OPENED")).arg(QFileInfo(event.path).fileName()),
                GetText(QStringLiteral("UI_NOTIFICATIONS_FILE_OPENED_UNDO")));
        });
    m_fileFailedConnection
        = m_eventbus->Subscribe<ModelFileFailedEvent>([this](const ModelFileFailedEvent& event) {
              const QString titleId = event.operation == ModelFileOperation::Open
                  ? QStringLiteral("UI_NOTIFICATIONS_FILE_OPEN_FAILED")
                  : QStringLiteral("UI_NOTIFICATIONS_FILE_SAVE_FAILED");
              m_model->Add(NotificationsModel::Error, GetText(titleId).arg(QFileInfo(event.path).fileName()),
                           event.message);
          });
}

std::shared_ptr<EventBus> Notifications::GetEventbus() const
{
    return m_eventbus;
}

} // namespace Orvo::UI::UIComponents
