#pragma once

#include <QObject>
#include <QPointer>

class QQuickWindow;
class QWindow;

// Plays a secondary-button hold over the marking menu page's model view, as a user would: the
// button goes down in the middle of the view, the menu opens, the pointer moves out over the
// top section onto a slice and rests there. For looking at the open menu in a screenshot.
class MarkingMenuGesture : public QObject
{
    Q_OBJECT

public:
    MarkingMenuGesture(QQuickWindow* window, QObject* parent = nullptr);
    void Start();

    static constexpr const char* c_viewObjectName = "markingMenuView";

private:
    void Press();
    void WaitForMenu(int attemptsLeft);
    void MoveOntoSlice(QWindow* menuWindow);

    QPointer<QQuickWindow> m_window;
};
