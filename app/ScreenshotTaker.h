#pragma once

#include <QObject>
#include <QString>

class QQuickWindow;

// Saves the window's next frames to a PNG after a settling delay, then quits the application
// with 0 on success and 1 on failure.
class ScreenshotTaker : public QObject
{
    Q_OBJECT

public:
    ScreenshotTaker(QQuickWindow* window, QString file, int delayMs, QObject* parent = nullptr);
    void Start();

private:
    void Capture();

    QQuickWindow* m_window;
    QString m_file;
    int m_delayMs;
};
