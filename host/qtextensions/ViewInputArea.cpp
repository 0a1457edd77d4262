#include "ViewInputArea.h"

#include "events/ShowMarkingMenuEvent.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

#include <QMouseEvent>

namespace Orvo::UI::QtExtensions {

ViewInputArea::ViewInputArea(QQuickItem* parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::RightButton);
    m_holdTurn.setSingleShot(true);
    m_holdTurn.setInterval(c_holdTurnDelayMs);
    Kernel::Framework::ServiceCatalog::Global()->Inject(*this);
}

bool ViewInputArea::holding() const
{
    return m_holding;
}

void ViewInputArea::SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
}

std::shared_ptr<Kernel::Framework::EventBus> ViewInputArea::GetEventbus() const
{
    return m_eventbus;
}

void ViewInputArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        event->ignore();
        return;
    }
    event->accept();
    SetHolding(true);
    m_holdTurn.start();
    PostRequest(true, event->globalPosition());
}

void ViewInputArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton || !m_holding) {
        event->ignore();
        return;
    }
    event->accept();
    SetHolding(false);
    m_holdTurn.stop();
    PostRequest(false, event->globalPosition());
}

void ViewInputArea::mouseUngrabEvent()
{
    // The grab is lost when the marking menu's window opens and takes the pointer: that window
    // now follows the gesture and sees its release, so the request is not withdrawn here.
    SetHolding(false);
}

void ViewInputArea::SetHolding(bool holding)
{
    if (m_holding == holding)
        return;
    m_holding = holding;
    emit holdingChanged();
}

void ViewInputArea::PostRequest(bool show, QPointF globalPosition)
{
    if (m_eventbus)
        m_eventbus->Post(Events::ShowMarkingMenuEvent(show, globalPosition.x(), globalPosition.y()));
}

} // namespace Orvo::UI::QtExtensions
