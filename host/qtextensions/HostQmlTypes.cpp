#include "HostQmlTypes.h"

#include "ViewInputArea.h"

#include <QQmlEngine>

namespace Orvo::UI::QtExtensions {

void RegisterHostQmlTypes()
{
    qmlRegisterType<ViewInputArea>(c_hostQmlModule, 1, 0, "ViewInputArea");
}

} // namespace Orvo::UI::QtExtensions
