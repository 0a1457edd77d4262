#include "DemoShell.h"

#include "commands/HotkeyHandler.h"

#include <utility>

DemoShell::DemoShell(QString initialPage, CommandActivity* commandActivity, ViewControls* viewControls,
                     Orvo::Kernel::Analysis::AnalysisService* analysis, QObject* parent)
    : QObject(parent)
    , m_initialPage(std::move(initialPage))
    , m_commandActivity(commandActivity)
    , m_viewControls(viewControls)
    , m_analysis(analysis)
{ }

Orvo::UI::UIComponents::HotkeyHandlerModel* DemoShell::hotkeyHandlerModel() const
{
    if (!m_hotkeyHandlerModel && m_shellContext) {
        const QVariant published = m_shellContext->contextProperty(
            QString::fromLatin1(Orvo::UI::UIComponents::HotkeyHandler::c_modelContextProperty));
        m_hotkeyHandlerModel
            = qobject_cast<Orvo::UI::UIComponents::HotkeyHandlerModel*>(published.value<QObject*>());
    }
    return m_hotkeyHandlerModel;
}

void DemoShell::SetShellContext(QQmlContext* context)
{
    const auto* before = m_hotkeyHandlerModel.data();
    m_shellContext = context;
    m_hotkeyHandlerModel = nullptr;
    if (hotkeyHandlerModel() != before)
        emit hotkeyHandlerModelChanged();
}
