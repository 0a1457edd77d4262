#include "TypeRegistration.h"

#include "StringsQtComponents.h"
#include "commands/HotkeyHandler.h"
#include "qtextensions/FramelessWindow.h"

#include <QQmlEngine>

namespace Orvo::UI::UIComponents {

namespace {

QObject* CreateStrings(QQmlEngine*, QJSEngine*)
{
    // The engine takes ownership: one instance per engine.
    return new StringsQtComponents();
}

} // namespace

void RegisterQtComponentsTypes(const char* uri)
{
    constexpr int major = 1;
    constexpr int minor = 0;

    // The order below is the module's registration order; keep new rows in their place.
    qmlRegisterType<HotkeyHandler>(uri, major, minor, "HotkeyHandler_Cpp");
    qmlRegisterType<QtExtensions::FramelessWindow>(uri, major, minor, "FramelessWindow");
    qmlRegisterSingletonType<StringsQtComponents>(uri, major, minor, "Strings", CreateStrings);
}

} // namespace Orvo::UI::UIComponents
