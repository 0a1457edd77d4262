#pragma once

#include "HostKitExport.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QString>

namespace Orvo::UI::QtExtensions {

// Key sequences for QML (the singleton KeySequences of Orvo.QtExtensions), which has no way of
// its own to turn a key press into the text a Shortcut's sequence takes.
class HOSTKIT_EXPORT KeySequences : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(KeySequences)
    QML_SINGLETON

public:
    explicit KeySequences(QObject* parent = nullptr);

    // The portable text of the key combination of a key event ("Ctrl+Shift+M"), or an empty
    // text while only modifiers are held.
    Q_INVOKABLE QString fromKeyPress(int key, int modifiers) const;
};

} // namespace Orvo::UI::QtExtensions
