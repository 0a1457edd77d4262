#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The process toolbar's centre button: the main action of the current step ("Calculate"), whether
// it can run now, and whether it is running.
class CenterButtonData : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CenterButtonData)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString stepId READ stepId NOTIFY changed)
    Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
    Q_PROPERTY(bool running READ running NOTIFY changed)
    Q_PROPERTY(QString shortcut READ shortcut CONSTANT)

public:
    static inline const QString c_shortcut = QStringLiteral("F5");

    explicit CenterButtonData(QObject* parent = nullptr);

    QString text() const { return m_text; }
    QString stepId() const { return m_stepId; }
    bool enabled() const { return m_enabled; }
    bool running() const { return m_running; }
    QString shortcut() const { return c_shortcut; }

    void Set(const QString& stepId, const QString& text, bool enabled, bool running);

signals:
    void changed();
    // The user pressed the button (or its shortcut).
    void triggered();

public slots:
    void trigger();

private:
    QString m_text;
    QString m_stepId;
    bool m_enabled = false;
    bool m_running = false;
};

} // namespace Orvo::UI::UIComponents
