#pragma once

#include "HostKitExport.h"

#include <QQmlParserStatus>
#include <QQuickWindow>
#include <QVariant>

namespace Orvo::UI::QtExtensions {

// A top-level QML window without system decorations, for popups that draw their own frame
// (the marking menu, floating panels). It behaves as QML's Window otherwise.
//
// A popup that opens in the middle of a mouse gesture (the button went down in another
// window) cannot rely on its items: they never saw the press, so they are not sent the moves
// and the release. The window therefore reports every pointer move and button release it
// receives, and with grabsPointer set it takes the pointer while it is shown, so those events
// come to it rather than to the window where the gesture began.
//
// A transparent window needs a compositing window manager to show what lies beneath it; without
// one (plain X servers, many remote desktops) its transparent pixels come out black. The window
// then falls back to a mask: only the polygons in maskPolygons are shown, so a popup that draws
// rings shows only its rings.
//
// Declared in QML, the window shows itself only once the whole declaration is applied, so a
// window declared visible opens at its declared geometry, flags and colour, not at defaults.
class HOSTKIT_EXPORT FramelessWindow : public QQuickWindow, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible NOTIFY visibleChanged)
    Q_PROPERTY(bool grabsPointer READ grabsPointer WRITE setGrabsPointer NOTIFY grabsPointerChanged)
    // Whether the window system blends the window's transparent pixels with what lies beneath.
    Q_PROPERTY(bool translucent READ isTranslucent NOTIFY translucentChanged)
    Q_PROPERTY(MaskPolicy maskPolicy READ maskPolicy WRITE setMaskPolicy NOTIFY maskPolicyChanged)
    // The parts of the window that are drawn: a list of polygons, each a list of points in window
    // coordinates. Empty: the whole window.
    Q_PROPERTY(QVariantList maskPolygons READ maskPolygons WRITE setMaskPolygons NOTIFY maskPolygonsChanged)
    // Whether the mask is applied now.
    Q_PROPERTY(bool masked READ isMasked NOTIFY maskedChanged)

public:
    enum MaskPolicy
    {
        MaskWhenOpaque, // only where transparency would come out black
        MaskAlways,
        MaskNever,
    };
    Q_ENUM(MaskPolicy)

    explicit FramelessWindow(QWindow* parent = nullptr);
    ~FramelessWindow() override;

    // Hides QWindow::setVisible for QML: while a declaration is being applied, the request waits.
    void setVisible(bool visible);

    bool grabsPointer() const;
    void setGrabsPointer(bool grabsPointer);
    bool isTranslucent() const { return m_translucent; }
    MaskPolicy maskPolicy() const { return m_maskPolicy; }
    void setMaskPolicy(MaskPolicy policy);
    QVariantList maskPolygons() const { return m_maskPolygons; }
    void setMaskPolygons(const QVariantList& polygons);
    bool isMasked() const { return m_masked; }

    // Whether the window shows anything at position (window coordinates): inside its mask, or
    // anywhere while it has none.
    Q_INVOKABLE bool isShownAt(const QPointF& position) const;

signals:
    // Redeclared with the property that hides QWindow's: forwards QWindow::visibleChanged.
    void visibleChanged(bool visible);
    void grabsPointerChanged();
    void translucentChanged();
    void maskPolicyChanged();
    void maskPolygonsChanged();
    void maskedChanged();
    // position in window coordinates.
    void pointerMoved(QPointF position);
    void pointerReleased(QPointF position, int button);

protected:
    void classBegin() override;
    void componentComplete() override;
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void UpdatePointerGrab();
    void UpdateTranslucency();
    void UpdateMask();

    // False only between the start and the end of a QML declaration.
    bool m_complete = true;
    QMetaObject::Connection m_visibleForwarding;
    bool m_visibleRequested = false;
    bool m_grabsPointer = false;
    bool m_translucent = true;
    MaskPolicy m_maskPolicy = MaskWhenOpaque;
    QVariantList m_maskPolygons;
    bool m_masked = false;
};

} // namespace Orvo::UI::QtExtensions
