#pragma once

#include "TutorialToolTipData.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QPointer>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the guided tour's tip. Laid over the whole window, it finds the item the
// current step points at (by objectName, among the window's visible items) and works out where
// the tip goes: beside the item where there is room, right, left, below or above it, with the
// arrow pointing at the item's middle. A step whose item is not in the window is passed over,
// with a warning; one that leaves while its step is shown (another page) pauses the tour until
// the host starts it again. The Help menu's "Restart tour" command starts the tour again.
class TutorialToolTip : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TutorialToolTip_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::TutorialToolTipData* tour READ tour CONSTANT)
    // The size the tip needs; the document sets it from its contents.
    Q_PROPERTY(QSizeF tipSize READ tipSize WRITE setTipSize NOTIFY tipSizeChanged)
    // Where the step's item is, and where the tip goes, in this item's coordinates; empty while
    // no step is shown.
    Q_PROPERTY(QRectF targetRect READ targetRect NOTIFY layoutChanged)
    Q_PROPERTY(QRectF tipRect READ tipRect NOTIFY layoutChanged)
    Q_PROPERTY(Placement placement READ placement NOTIFY layoutChanged)
    // Where the arrow's point touches the item, in this item's coordinates.
    Q_PROPERTY(QPointF arrowPoint READ arrowPoint NOTIFY layoutChanged)

public:
    // The side of the item the tip is on.
    enum Placement
    {
        Right,
        Left,
        Below,
        Above
    };
    Q_ENUM(Placement)

    static constexpr const wchar_t* c_restartTourCommand = L"3e0f5b9a-7c41-4d2e-9f86-1b2a4c6d8e07";
    // Room between the item and the tip, for the arrow, and from the window's edges.
    static constexpr double c_arrowLength = 12.0;
    static constexpr double c_margin = 8.0;

    explicit TutorialToolTip(QQuickItem* parent = nullptr);
    ~TutorialToolTip() override;

    TutorialToolTipData* tour() const { return m_tour; }
    QSizeF tipSize() const { return m_tipSize; }
    void setTipSize(const QSizeF& size);
    QRectF targetRect() const { return m_targetRect; }
    QRectF tipRect() const { return m_tipRect; }
    Placement placement() const { return m_placement; }
    QPointF arrowPoint() const { return m_arrowPoint; }

    // Looks for the step's item again and places the tip (the window's layout changed).
    Q_INVOKABLE void updateTarget();

    // The window's visible item of that objectName, this tip's own items aside; null when none.
    QQuickItem* FindTarget(const QString& objectName) const;
    // Where a tip of the size goes beside the target within the area.
    static Placement ChoosePlacement(const QRectF& area, const QRectF& target, const QSizeF& tip);
    static QRectF PlaceTip(const QRectF& area, const QRectF& target, const QSizeF& tip, Placement placement);

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    void tipSizeChanged();
    void layoutChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void OnStepChanged();
    void OnTargetVisibilityChanged();
    void Layout();

    TutorialToolTipData* m_tour = nullptr;
    QSizeF m_tipSize;
    QPointer<QQuickItem> m_target;
    QMetaObject::Connection m_targetVisibility;
    QRectF m_targetRect;
    QRectF m_tipRect;
    Placement m_placement = Right;
    QPointF m_arrowPoint;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    Kernel::Framework::EventConnection m_commandConnection;
};

} // namespace Orvo::UI::UIComponents
