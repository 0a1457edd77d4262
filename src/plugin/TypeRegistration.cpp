#include "TypeRegistration.h"

#include "StringsQtComponents.h"
#include "commands/CommandMenuHelper.h"
#include "commands/HotkeyHandler.h"
#include "markingmenu/MarkingMenu.h"
#include "markingmenu/MarkingMenuConfig.h"
#include "markingmenu/MarkingMenuSectionConfig.h"
#include "qtextensions/FramelessWindow.h"
#include "valueentry/InlineCalculator.h"
#include "valueentry/IntegerValidator.h"
#include "valueentry/RealValidator.h"

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
    qmlRegisterType<CommandMenuHelper>(uri, major, minor, "CommandMenuHelper");
    qmlRegisterType<IntegerValidator>(uri, major, minor, "IntegerValidator");
    qmlRegisterType<RealValidator>(uri, major, minor, "RealValidator");
    qmlRegisterType<InlineCalculator>(uri, major, minor, "InlineCalculator");
    qmlRegisterType<MarkingMenuSectionConfig>(uri, major, minor, "MarkingMenuSectionConfig");
    qmlRegisterType<MarkingMenuConfig>(uri, major, minor, "MarkingMenuConfig");
    qmlRegisterType<MarkingMenu>(uri, major, minor, "MarkingMenu_Cpp");
    qmlRegisterType<QtExtensions::FramelessWindow>(uri, major, minor, "FramelessWindow");
    qmlRegisterSingletonType<StringsQtComponents>(uri, major, minor, "Strings", CreateStrings);
}

} // namespace Orvo::UI::UIComponents
