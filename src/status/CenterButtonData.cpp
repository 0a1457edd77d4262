#include "CenterButtonData.h"

#include "StatusLogging.h"

namespace Orvo::UI::UIComponents {

CenterButtonData::CenterButtonData(QObject* parent)
    : QObject(parent)
{ }

void CenterButtonData::Set(const QString& stepId, const QString& text, bool enabled, bool running)
{
    if (stepId == m_stepId && text == m_text && enabled == m_enabled && running == m_running)
        return;
    m_stepId = stepId;
    m_text = text;
    m_enabled = enabled;
    m_running = running;
    emit changed();
}

void CenterButtonData::trigger()
{
    // The shortcut reaches here even while the button is greyed out.
    if (!m_enabled) {
        qCDebug(lcStatus).noquote() << "The action of" << m_stepId << "cannot run now";
        return;
    }
    emit triggered();
}

} // namespace Orvo::UI::UIComponents
