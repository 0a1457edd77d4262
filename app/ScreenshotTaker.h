#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QSharedPointer>
#include <QString>
#include <vector>

class QQuickItemGrabResult;
class QQuickWindow;

// Saves the window's next frames to a PNG after a settling delay, with any other visible window
// of the application (a popup such as the marking menu) drawn over it where it stands on the
// screen, then quits the application with 0 on success and 1 on failure.
class ScreenshotTaker : public QObject
{
    Q_OBJECT

public:
    ScreenshotTaker(QQuickWindow* window, QString file, int delayMs, QObject* parent = nullptr);
    void Start();

private:
    struct Popup
    {
        QPoint offset;
        QSharedPointer<QQuickItemGrabResult> grab;
    };

    void Capture();
    void Save();

    QQuickWindow* m_window;
    QString m_file;
    int m_delayMs;
    QImage m_image;
    std::vector<Popup> m_popups;
    int m_pendingPopups = 0;
};
