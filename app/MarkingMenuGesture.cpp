#include "MarkingMenuGesture.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>
#include <cstdio>

namespace {

constexpr int c_pageLoadDelayMs = 300;
constexpr int c_pollIntervalMs = 50;
constexpr int c_pollAttempts = 60;

// Items made by a Loader are not QObject children of the page: walk the visual tree.
QQuickItem* FindItem(QQuickItem* root, const QString& objectName)
{
    if (root->objectName() == objectName)
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = FindItem(child, objectName))
            return found;
    }
    return nullptr;
}

} // namespace

MarkingMenuGesture::MarkingMenuGesture(QQuickWindow* window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{ }

void MarkingMenuGesture::Start()
{
    QTimer::singleShot(c_pageLoadDelayMs, this, &MarkingMenuGesture::Press);
}

void MarkingMenuGesture::Press()
{
    if (!m_window)
        return;
    QQuickItem* view = FindItem(m_window->contentItem(), QString::fromLatin1(c_viewObjectName));
    if (!view) {
        std::fprintf(stderr, "No model view to hold the button over: open the marking menu page\n");
        return;
    }
    const QPointF centre = view->mapToScene(QPointF(view->width() / 2, view->height() / 2));
    QTest::mousePress(m_window, Qt::RightButton, {}, centre.toPoint());
    WaitForMenu(c_pollAttempts);
}

void MarkingMenuGesture::WaitForMenu(int attemptsLeft)
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window != m_window && window->isVisible() && window->isExposed()) {
            MoveOntoSlice(window);
            return;
        }
    }
    if (attemptsLeft == 0) {
        std::fprintf(stderr, "The marking menu did not open\n");
        return;
    }
    QTimer::singleShot(c_pollIntervalMs, this, [this, attemptsLeft]() { WaitForMenu(attemptsLeft - 1); });
}

void MarkingMenuGesture::MoveOntoSlice(QWindow* menuWindow)
{
    const QPoint centre(menuWindow->width() / 2, menuWindow->height() / 2);
    // Up into the top section, then on, slightly right of straight up: its fourth slice.
    QTest::mouseMove(menuWindow, centre + QPoint(0, -30));
    QTest::mouseMove(menuWindow, centre + QPoint(40, -150));
}
