#include "ModelingCommands.h"

#include "commands/RunningCommand.h"
#include "events/CommandExecuted.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "model/ObjectIds.h"
#include "properties/StructuralModel.h"

using namespace Orvo::Kernel::Framework;
using Orvo::Kernel::Model::ObjectKind;

namespace {

const wchar_t* const c_startPrompt = L"UI_PROMPT_START_POINT";
const wchar_t* const c_endPrompt = L"UI_PROMPT_END_POINT";

QString PointText(const std::vector<double>& values)
{
    QStringList parts;
    for (double value : values)
        parts << QString::number(value);
    return QStringLiteral("(%1)").arg(parts.join(QStringLiteral("; ")));
}

} // namespace

ModelingCommands::ModelingCommands(QObject* parent)
    : QObject(parent)
{
    auto catalog = ServiceCatalog::Global();
    auto eventbus = catalog->Get<EventBus>();
    if (!eventbus)
        return;
    m_executedConnection = eventbus->Subscribe<Orvo::UI::Events::CommandExecuted>([this](const auto& event) {
        auto running = ServiceCatalog::Global()->Get<RunningCommand>();
        if (!running)
            return;
        const std::wstring& uuid = event.GetCommandUuid();
        if (uuid == c_newNode || uuid == c_newMember) {
            m_startPoint.clear();
            running->Start(uuid, c_startPrompt, 3);
        }
    });
    m_inputConnection = eventbus->Subscribe<Orvo::UI::Events::CommandInputOffered>(
        [this](const auto& event) { OnInput(event.GetCommandUuid(), event.GetValues()); });
}

void ModelingCommands::cancel()
{
    m_startPoint.clear();
    if (auto running = ServiceCatalog::Global()->Get<RunningCommand>())
        running->Finish();
}

void ModelingCommands::OnInput(const std::wstring& commandUuid, const std::vector<double>& values)
{
    auto catalog = ServiceCatalog::Global();
    auto running = catalog->Get<RunningCommand>();
    auto model = catalog->Get<StructuralModel>();
    if (!running || !model || values.size() != 3)
        return;
    const auto addNode = [&](const std::vector<double>& point) {
        return model->AddObject(ObjectKind::Node,
                                { { QStringLiteral("node.x"), point[0] },
                                  { QStringLiteral("node.y"), point[1] },
                                  { QStringLiteral("node.z"), point[2] } });
    };
    m_lastInput = PointText(values);
    if (commandUuid == c_newNode) {
        const ObjectId node = addNode(values);
        m_lastResult = node ? model->ObjectsPhrase({ node }) : QString();
        // New node stays on for the next point, as drawing tools do; Escape ends it.
    } else if (commandUuid == c_newMember) {
        if (m_startPoint.empty()) {
            m_startPoint = values;
            m_lastResult.clear();
            running->SetPrompt(c_endPrompt, 3);
        } else {
            Orvo::Kernel::Model::Number start = 0;
            Orvo::Kernel::Model::Number end = 0;
            {
                StructuralModel::ChangeScope scope(*model,
                                                   model->PlainText(QStringLiteral("UI_COMMAND_NEW_MEMBER")));
                start = Orvo::Kernel::Model::NumberOf(addNode(m_startPoint));
                end = Orvo::Kernel::Model::NumberOf(addNode(values));
                const ObjectId member = model->AddObject(ObjectKind::Member,
                                                         { { QStringLiteral("member.startNode"), start },
                                                           { QStringLiteral("member.endNode"), end } });
                m_lastResult = member ? model->ObjectsPhrase({ member }) : QString();
            }
            // The next member starts where this one ended.
            m_startPoint = values;
        }
    }
    emit inputTaken();
}
