#include "StringsQtComponents.h"

#include "QtComponentsText.h"

namespace Orvo::UI::UIComponents {

StringsQtComponents::StringsQtComponents(QObject* parent)
    : QObject(parent)
{ }

QString StringsQtComponents::text(QString id) const
{
    // Bindings call this constantly; the host's loader is a hash lookup, so nothing is cached here.
    return GetText(id);
}

} // namespace Orvo::UI::UIComponents
