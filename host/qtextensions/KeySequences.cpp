#include "KeySequences.h"

#include <QKeySequence>

namespace Orvo::UI::QtExtensions {

KeySequences::KeySequences(QObject* parent)
    : QObject(parent)
{ }

QString KeySequences::fromKeyPress(int key, int modifiers) const
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_Meta:
    case Qt::Key_AltGr:
    case Qt::Key_unknown:
    case 0:
        return {};
    default:
        break;
    }
    // A keypad key is the same shortcut as the main key, except for Enter, which is a key of its own.
    const auto keyboardModifiers = Qt::KeyboardModifiers(modifiers) & ~Qt::KeypadModifier;
    return QKeySequence(QKeyCombination(keyboardModifiers, Qt::Key(key)))
        .toString(QKeySequence::PortableText);
}

} // namespace Orvo::UI::QtExtensions
