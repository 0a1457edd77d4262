#include "Spotlight.h"

#include "SpotlightLogging.h"
#include "SpotlightModel.h"
#include "SpotlightProxyModel.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RunningCommand.h"
#include "events/CommandStateChange.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

namespace {

const QString c_recentKey = QStringLiteral("recent");

} // namespace

Spotlight::Spotlight(QQuickItem* parent)
    : UIComponent(parent)
    , m_model(new SpotlightModel(this))
    , m_results(new SpotlightProxyModel(this))
{
    m_results->setSourceModel(m_model);
    auto catalog = ServiceCatalog::Global();
    m_structuralModel = catalog->Get<StructuralModel>();
    m_runningCommand = catalog->Get<RunningCommand>();
    catalog->Inject(*this);
}

Spotlight::~Spotlight() = default;

void Spotlight::setSearchText(const QString& searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    m_model->setQuery(searchText);
    m_results->setSearchText(searchText);
    emit searchTextChanged();
}

QString Spotlight::runningCommandName() const
{
    if (!m_runningCommand || !m_runningCommand->IsRunning() || !m_repository)
        return QString();
    const auto command = m_repository->FindCommand(m_runningCommand->CommandUuid());
    return command ? GetText(QString::fromStdWString(command->nameId)) : QString();
}

void Spotlight::reload()
{
    m_model->reload();
}

bool Spotlight::activate(int row)
{
    return CatchAtSpotlightBoundary("Spotlight choice", false, [&] { return Activate(row); });
}

bool Spotlight::Activate(int row)
{
    const int sourceRow = m_results->sourceRow(row);
    const SpotlightModel::Entry* found = m_model->EntryAt(sourceRow);
    if (!found)
        return false;
    // The entry may go when the model changes below (a selection, a command that edits).
    const SpotlightModel::Entry entry = *found;
    bool done = false;
    switch (entry.kind) {
    case SpotlightModel::Command: {
        if (!entry.enabled || !m_processor)
            return false;
        const auto command
            = m_repository ? m_repository->FindCommand(entry.key.toStdWString()) : std::nullopt;
        done = m_processor->ExecuteCommand(entry.key.toStdWString(),
                                           command ? command->parameterString : std::wstring(), c_origin);
        break;
    }
    case SpotlightModel::Object: {
        const ObjectId id = entry.value.toInt();
        if (!m_structuralModel || !m_structuralModel->Exists(id))
            return false;
        m_structuralModel->Select({ id });
        emit objectSelected(id, entry.title);
        done = true;
        break;
    }
    case SpotlightModel::Table:
        emit tableRequested(entry.value.toString(), entry.key);
        done = true;
        break;
    case SpotlightModel::Setting:
        emit settingRequested(entry.key);
        done = true;
        break;
    case SpotlightModel::Calculation:
        if (QClipboard* clipboard = QGuiApplication::clipboard())
            clipboard->setText(entry.title);
        emit resultCopied(entry.title);
        done = true;
        break;
    case SpotlightModel::Coordinates: {
        std::vector<double> values;
        for (const QVariant& value : entry.value.toList())
            values.push_back(value.toDouble());
        done = m_runningCommand && m_runningCommand->Offer(values);
        if (done)
            emit inputOffered(entry.title);
        break;
    }
    }
    if (done) {
        m_model->NoteChosen(entry);
        emit activated();
    }
    return done;
}

void Spotlight::loadConfiguration(const QString& userConfiguration)
{
    const QJsonObject stored = QJsonDocument::fromJson(userConfiguration.toUtf8()).object();
    QStringList recent;
    for (const QJsonValue& value : stored.value(c_recentKey).toArray())
        recent << value.toString();
    m_model->setRecentKeys(recent);
}

QString Spotlight::saveConfiguration()
{
    QJsonObject stored;
    stored.insert(c_recentKey, QJsonArray::fromStringList(m_model->recentKeys()));
    return QString::fromUtf8(QJsonDocument(stored).toJson(QJsonDocument::Compact));
}

bool Spotlight::isPersistent() const
{
    return true;
}

void Spotlight::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_runningConnection = EventConnection();
        m_stateConnection = EventConnection();
        return;
    }
    m_runningConnection = m_eventbus->Subscribe<Events::RunningCommandChanged>([this](const auto&) {
        m_model->refreshAnswers();
        emit runningCommandChanged();
    });
    // Enabled and visible states show in the list.
    m_stateConnection
        = m_eventbus->Subscribe<Events::CommandStateChange>([this](const auto&) { m_model->reload(); });
}

std::shared_ptr<EventBus> Spotlight::GetEventbus() const
{
    return m_eventbus;
}

void Spotlight::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_repository = std::move(repository);
}

std::shared_ptr<ICommandRepository> Spotlight::GetCommandRepository() const
{
    return m_repository;
}

void Spotlight::SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor)
{
    m_processor = std::move(processor);
}

std::shared_ptr<IUICommandProcessor> Spotlight::GetUICommandProcessor() const
{
    return m_processor;
}

} // namespace Orvo::UI::UIComponents
