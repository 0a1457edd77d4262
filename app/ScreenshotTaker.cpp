#include "ScreenshotTaker.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>

ScreenshotTaker::ScreenshotTaker(QQuickWindow* window, QString file, int delayMs, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_file(std::move(file))
    , m_delayMs(delayMs)
{ }

void ScreenshotTaker::Start()
{
    QTimer::singleShot(m_delayMs, this, &ScreenshotTaker::Capture);
}

void ScreenshotTaker::Capture()
{
    m_image = m_window->grabWindow();
    // A window grab has no alpha channel on every platform, so a popup's transparent parts would
    // come out black: its content item is grabbed instead, which keeps them transparent.
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* popup = qobject_cast<QQuickWindow*>(window);
        if (!popup || popup == m_window || !popup->isVisible())
            continue;
        auto grab = popup->contentItem()->grabToImage();
        if (!grab)
            continue;
        ++m_pendingPopups;
        connect(grab.data(), &QQuickItemGrabResult::ready, this, [this]() {
            if (--m_pendingPopups == 0)
                Save();
        });
        m_popups.push_back({ popup->position() - m_window->position(), grab });
    }
    if (m_pendingPopups == 0)
        Save();
}

void ScreenshotTaker::Save()
{
    QPainter painter(&m_image);
    for (const Popup& popup : m_popups)
        painter.drawImage(popup.offset, popup.grab->image());
    painter.end();
    if (m_image.isNull() || !m_image.save(m_file)) {
        std::fprintf(stderr, "Could not write screenshot %s\n", qPrintable(m_file));
        QCoreApplication::exit(1);
        return;
    }
    std::printf("Screenshot written to %s (%dx%d)\n", qPrintable(m_file), m_image.width(), m_image.height());
    QCoreApplication::exit(0);
}
