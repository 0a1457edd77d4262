#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the window's file drop. The window's document tells it when files are
// dragged over the window and when they are dropped; it says whether the drag holds a file the
// application opens (a model file) and what the overlay says, and hands a dropped model file to
// the host's Open command, which reads it as Open from the File menu does. A drop without such a
// file changes nothing: the user hears why through the notification centre.
class FileDrop : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FileDrop_Cpp)
    // Files are being dragged over the window.
    Q_PROPERTY(bool dragActive READ dragActive NOTIFY dragChanged)
    // The dragged files include one the window opens.
    Q_PROPERTY(bool dragAcceptable READ dragAcceptable NOTIFY dragChanged)
    // What the overlay says while files are dragged over the window.
    Q_PROPERTY(QString message READ message NOTIFY dragChanged)

public:
    explicit FileDrop(QObject* parent = nullptr);

    bool dragActive() const { return m_dragActive; }
    bool dragAcceptable() const { return !m_fileToOpen.isEmpty(); }
    QString message() const { return m_message; }

    // Files entered the window, or the drag moved on with other files.
    Q_INVOKABLE void enter(const QList<QUrl>& urls);
    // The drag left the window without dropping.
    Q_INVOKABLE void leave();
    // Hands the first model file among the dropped ones to the host's Open command, which reports
    // what became of it; false (and nothing changes) when there is none or the command is not
    // available.
    Q_INVOKABLE bool drop(const QList<QUrl>& urls);

    // The file a drop of these urls opens: the first local model file, or an empty text.
    static QString FileToOpen(const QList<QUrl>& urls);

signals:
    void dragChanged();
    // A drop was refused: why, in the user's language.
    void refused(const QString& message);

private:
    bool Drop(const QList<QUrl>& urls);
    void Refuse(const QList<QUrl>& urls, const QString& message);
    void SetDrag(bool active, const QString& fileToOpen, const QString& message);

    bool m_dragActive = false;
    QString m_fileToOpen;
    QString m_message;
};

} // namespace Orvo::UI::UIComponents
