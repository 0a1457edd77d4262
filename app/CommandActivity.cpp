#include "CommandActivity.h"

#include "commands/CommandOrigin.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "document/ModelDocument.h"
#include "events/CommandExecuted.h"
#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "qtextensions/File.h"

using namespace Orvo::Kernel::Framework;

namespace {

const wchar_t* const c_reportCommand = L"79b588a8-1ec0-49c6-af6b-a91ec61dffe5";

bool RunWithFile(const wchar_t* command, const QString& path)
{
    auto processor = ServiceCatalog::Global()->Get<IUICommandProcessor>();
    const QString file = path.trimmed();
    return processor && !file.isEmpty()
        && processor->ExecuteCommand(command, RecentFiles::c_fileParameter + file.toStdWString(),
                                     L"FilePrompt");
}

} // namespace

CommandActivity::CommandActivity(QObject* parent)
    : QObject(parent)
{
    auto catalog = ServiceCatalog::Global();
    auto eventbus = catalog->Get<EventBus>();
    if (!eventbus)
        return;
    m_executedConnection = eventbus->Subscribe<Orvo::UI::Events::CommandExecuted>(
        [this](const Orvo::UI::Events::CommandExecuted& event) {
            auto catalog = ServiceCatalog::Global();
            const auto repository = catalog->Get<ICommandRepository>();
            const auto command = repository ? repository->FindCommand(event.GetCommandUuid()) : std::nullopt;
            const auto strings = catalog->Get<IStringLoader>();
            m_lastCommandUuid = QString::fromStdWString(event.GetCommandUuid());
            m_lastCommandName = command && strings ? QString::fromStdWString(strings->Load(
                                    { command->nameId, DefaultServices::c_componentsStringTable }))
                                                   : m_lastCommandUuid;
            m_lastCommandIcon = command
                ? Orvo::UI::QtExtensions::File::createQmlFilePathFromApplicationPath(command->icon)
                : QString();
            m_lastParameters = QString::fromStdWString(event.GetParameterString());
            m_lastOrigin = QString::fromStdWString(CommandOrigin::DisplayName(event.GetOrigin()));
            ++m_runCount;
            emit commandRun();
            if (event.GetCommandUuid() == c_reportCommand)
                emit reportRequested();
        });
    m_fileNameConnection
        = eventbus->Subscribe<ModelFileNameNeededEvent>([this](const ModelFileNameNeededEvent& event) {
              emit fileNameNeeded(event.operation == ModelFileOperation::Save, event.suggestedPath);
          });
}

bool CommandActivity::openFile(const QString& path)
{
    return RunWithFile(ModelDocument::c_openCommand, path);
}

bool CommandActivity::saveFileAs(const QString& path)
{
    return RunWithFile(ModelDocument::c_saveAsCommand, path);
}

bool CommandActivity::setGroupEnabled(const QString& group, bool enabled)
{
    auto repository = ServiceCatalog::Global()->Get<ICommandRepository>();
    return repository && repository->SetGroupEnabled(group.toStdWString(), enabled);
}
