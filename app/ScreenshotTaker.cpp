#include "ScreenshotTaker.h"

#include <QCoreApplication>
#include <QImage>
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
    const QImage image = m_window->grabWindow();
    if (image.isNull() || !image.save(m_file)) {
        std::fprintf(stderr, "Could not write screenshot %s\n", qPrintable(m_file));
        QCoreApplication::exit(1);
        return;
    }
    std::printf("Screenshot written to %s (%dx%d)\n", qPrintable(m_file), image.width(), image.height());
    QCoreApplication::exit(0);
}
