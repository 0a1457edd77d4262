#pragma once

#include "HostKitExport.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"

#include <QPointF>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::QtExtensions {

// The input surface of a view (the model view, a drawing). Holding the secondary mouse button
// over it asks for the marking menu: the press posts ShowMarkingMenuEvent with show set,
// centred on the pointer in screen coordinates, the release withdraws the request. Qt already
// reports the logical secondary button as Qt::RightButton when the system swaps the buttons.
class HOSTKIT_EXPORT ViewInputArea : public QQuickItem, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ViewInputArea)
    Q_PROPERTY(bool holding READ holding NOTIFY holdingChanged)

public:
    explicit ViewInputArea(QQuickItem* parent = nullptr);

    bool holding() const;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

    // The menu opens on the second idle turn of the event loop after the request. A pointer
    // that rests after the press gives the loop nothing to do, so a timer provides one more
    // turn after this delay.
    static constexpr int c_holdTurnDelayMs = 200;

signals:
    void holdingChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    void SetHolding(bool holding);
    void PostRequest(bool show, QPointF globalPosition);

    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    QTimer m_holdTurn;
    bool m_holding = false;
};

} // namespace Orvo::UI::QtExtensions
