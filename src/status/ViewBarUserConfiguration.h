#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// What the user made of the view bar: the buttons pinned to it, which stay in the bar however
// narrow it gets (the others go to its "more options" menu first). Stored by the host as the
// view bar's configuration, a JSON text.
class ViewBarUserConfiguration : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ViewBarUserConfiguration)
    Q_PROPERTY(
        QStringList pinnedButtons READ pinnedButtons WRITE setPinnedButtons NOTIFY pinnedButtonsChanged)

public:
    explicit ViewBarUserConfiguration(QObject* parent = nullptr);

    QStringList pinnedButtons() const { return m_pinned; }
    void setPinnedButtons(const QStringList& buttonIds);

    Q_INVOKABLE bool isPinned(const QString& buttonId) const;
    Q_INVOKABLE void setPinned(const QString& buttonId, bool pinned);

    // False, and nothing changes, for a text that is no configuration of the bar.
    bool FromString(const QString& text);
    QString ToString() const;

signals:
    void pinnedButtonsChanged();

private:
    QStringList m_pinned;
};

} // namespace Orvo::UI::UIComponents
