#include "TutorialToolTip.h"

#include "TutorialLogging.h"
#include "events/CommandExecuted.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

#include <QQuickWindow>
#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

namespace {

QQuickItem* FindVisible(QQuickItem* item, const QString& objectName, const QQuickItem* skipped)
{
    if (item == skipped || !item->isVisible())
        return nullptr;
    if (item->objectName() == objectName && item->width() > 0 && item->height() > 0)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = FindVisible(child, objectName, skipped))
            return found;
    }
    return nullptr;
}

} // namespace

TutorialToolTip::TutorialToolTip(QQuickItem* parent)
    : UIComponent(parent)
    , m_tour(new TutorialToolTipData(this))
{
    connect(m_tour, &TutorialToolTipData::currentChanged, this, &TutorialToolTip::OnStepChanged);
    ServiceCatalog::Global()->Inject(*this);
}

TutorialToolTip::~TutorialToolTip() = default;

void TutorialToolTip::setTipSize(const QSizeF& size)
{
    if (m_tipSize == size)
        return;
    m_tipSize = size;
    emit tipSizeChanged();
    Layout();
}

QQuickItem* TutorialToolTip::FindTarget(const QString& objectName) const
{
    if (objectName.isEmpty() || !window())
        return nullptr;
    return FindVisible(window()->contentItem(), objectName, this);
}

void TutorialToolTip::updateTarget()
{
    CatchAtTutorialBoundary("Placing the tutorial tip", 0, [this] {
        OnStepChanged();
        return 0;
    });
}

void TutorialToolTip::OnStepChanged()
{
    disconnect(m_targetVisibility);
    if (!m_tour->running()) {
        m_target = nullptr;
        Layout();
        return;
    }
    m_target = FindTarget(m_tour->targetName());
    if (m_target)
        m_targetVisibility = connect(m_target, &QQuickItem::visibleChanged, this,
                                     &TutorialToolTip::OnTargetVisibilityChanged);
    if (!m_target) {
        qCWarning(lcTutorial, "Tutorial step %d points at \"%s\", which is not in the window: passed over",
                  m_tour->currentIndex() + 1, qPrintable(m_tour->targetName()));
        // Moves on, which calls back here with the following step.
        m_tour->PassOver();
        return;
    }
    m_tour->MarkSeen();
    Layout();
}

void TutorialToolTip::OnTargetVisibilityChanged()
{
    if (m_target && m_target->isVisible())
        return;
    qCInfo(lcTutorial, "The item of tutorial step %d left the window: the tour pauses",
           m_tour->currentIndex() + 1);
    m_tour->pause();
}

void TutorialToolTip::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    UIComponent::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        Layout();
}

TutorialToolTip::Placement TutorialToolTip::ChoosePlacement(const QRectF& area, const QRectF& target,
                                                            const QSizeF& tip)
{
    const double gap = c_arrowLength + c_margin;
    // Beside the item first (the tip reads next to what it explains), then under or over it.
    if (area.right() - target.right() >= tip.width() + gap)
        return Right;
    if (target.left() - area.left() >= tip.width() + gap)
        return Left;
    if (area.bottom() - target.bottom() >= tip.height() + gap)
        return Below;
    if (target.top() - area.top() >= tip.height() + gap)
        return Above;
    // No side has room (an item as large as the window): inside it, under its top edge.
    return Below;
}

QRectF TutorialToolTip::PlaceTip(const QRectF& area, const QRectF& target, const QSizeF& tip,
                                 Placement placement)
{
    QRectF rect(QPointF(), tip);
    switch (placement) {
    case Right:
        rect.moveLeft(target.right() + c_arrowLength);
        rect.moveTop(target.center().y() - tip.height() / 2);
        break;
    case Left:
        rect.moveRight(target.left() - c_arrowLength);
        rect.moveTop(target.center().y() - tip.height() / 2);
        break;
    case Below:
        rect.moveTop(std::min(target.bottom() + c_arrowLength, area.bottom() - tip.height() - c_margin));
        rect.moveLeft(target.center().x() - tip.width() / 2);
        break;
    case Above:
        rect.moveBottom(target.top() - c_arrowLength);
        rect.moveLeft(target.center().x() - tip.width() / 2);
        break;
    }
    // Slide along the item's side to stay within the window.
    const double left
        = std::max(area.left() + c_margin, std::min(rect.left(), area.right() - tip.width() - c_margin));
    const double top
        = std::max(area.top() + c_margin, std::min(rect.top(), area.bottom() - tip.height() - c_margin));
    rect.moveTopLeft(QPointF(left, top));
    return rect;
}

void TutorialToolTip::Layout()
{
    QRectF targetRect;
    QRectF tipRect;
    Placement placement = m_placement;
    QPointF arrowPoint;
    if (m_target && m_tour->running()) {
        targetRect = mapRectFromItem(m_target, QRectF(0, 0, m_target->width(), m_target->height()));
        const QRectF area(0, 0, width(), height());
        placement = ChoosePlacement(area, targetRect, m_tipSize);
        tipRect = PlaceTip(area, targetRect, m_tipSize, placement);
        switch (placement) {
        case Right:
            arrowPoint = QPointF(targetRect.right(), targetRect.center().y());
            break;
        case Left:
            arrowPoint = QPointF(targetRect.left(), targetRect.center().y());
            break;
        case Below:
            arrowPoint = QPointF(targetRect.center().x(), tipRect.top() - c_arrowLength);
            break;
        case Above:
            arrowPoint = QPointF(targetRect.center().x(), targetRect.top());
            break;
        }
    }
    if (targetRect == m_targetRect && tipRect == m_tipRect && placement == m_placement
        && arrowPoint == m_arrowPoint)
        return;
    m_targetRect = targetRect;
    m_tipRect = tipRect;
    m_placement = placement;
    m_arrowPoint = arrowPoint;
    emit layoutChanged();
}

void TutorialToolTip::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_commandConnection = EventConnection();
        return;
    }
    m_commandConnection = m_eventbus->Subscribe<Orvo::UI::Events::CommandExecuted>(
        [this](const Orvo::UI::Events::CommandExecuted& event) {
            if (event.GetCommandUuid() == c_restartTourCommand)
                m_tour->restart();
        });
}

std::shared_ptr<EventBus> TutorialToolTip::GetEventbus() const
{
    return m_eventbus;
}

} // namespace Orvo::UI::UIComponents
