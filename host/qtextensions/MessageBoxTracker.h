#pragma once

#include "HostKitExport.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::QtExtensions {

class MessageBoxService;

// Tells the host's message-box service about one message box of a QML document: bind shown
// to the box's visibility. A tracker that goes away while shown reports its box closed, so a
// box destroyed while open does not leave the application believing one is still up.
class HOSTKIT_EXPORT MessageBoxTracker : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MessageBoxTracker)
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged)

public:
    explicit MessageBoxTracker(QObject* parent = nullptr);
    ~MessageBoxTracker() override;

    bool shown() const;
    void setShown(bool shown);

signals:
    void shownChanged();

private:
    std::shared_ptr<MessageBoxService> m_service;
    bool m_shown = false;
};

} // namespace Orvo::UI::QtExtensions
