#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// A rich tooltip: a title, a description of what the control does and its shortcut.
class TooltipData : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TooltipData)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY changed)
    Q_PROPERTY(QString shortcut READ shortcut WRITE setShortcut NOTIFY changed)
    // A line on the state of what the tooltip is about ("Needs an update: the model changed").
    Q_PROPERTY(QString status READ status WRITE setStatus NOTIFY changed)

public:
    explicit TooltipData(QObject* parent = nullptr);

    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QString description() const { return m_description; }
    void setDescription(const QString& description);
    QString shortcut() const { return m_shortcut; }
    void setShortcut(const QString& shortcut);
    QString status() const { return m_status; }
    void setStatus(const QString& status);

signals:
    void changed();

private:
    QString m_title;
    QString m_description;
    QString m_shortcut;
    QString m_status;
};

} // namespace Orvo::UI::UIComponents
