#include "CommandActivity.h"

#include "commands/CommandOrigin.h"
#include "commands/ICommandRepository.h"
#include "commands/RecentFiles.h"
#include "events/CommandExecuted.h"
#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "qtextensions/File.h"

#include <QDir>
#include <QStandardPaths>

using namespace Orvo::Kernel::Framework;

namespace {

const wchar_t* const c_saveCommand = L"5d85bcf0-15b0-44be-9bad-202d1b15dcbc";
const wchar_t* const c_reportCommand = L"79b588a8-1ec0-49c6-af6b-a91ec61dffe5";

// Where the demo's model would be saved: a save names its file, so the recent files show it.
QString DemoDocument()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
        .filePath(QStringLiteral("Building.orvo"));
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
            const auto recentFiles = catalog->Get<RecentFiles>();
            if (recentFiles && event.GetCommandUuid() == c_saveCommand
                && RecentFiles::FileOfParameters(event.GetParameterString()).isEmpty())
                recentFiles->Add(DemoDocument());
            ++m_runCount;
            emit commandRun();
            if (event.GetCommandUuid() == c_reportCommand)
                emit reportRequested();
        });
}

bool CommandActivity::setGroupEnabled(const QString& group, bool enabled)
{
    auto repository = ServiceCatalog::Global()->Get<ICommandRepository>();
    return repository && repository->SetGroupEnabled(group.toStdWString(), enabled);
}
