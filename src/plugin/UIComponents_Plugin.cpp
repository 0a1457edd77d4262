#include "UIComponents_Plugin.h"

#include "TypeRegistration.h"

#include <QQmlEngine>

namespace Orvo::UI::UIComponents {

UIComponents_Plugin::UIComponents_Plugin()
    : QQmlExtensionPlugin(nullptr)
{ }

void UIComponents_Plugin::registerTypes(const char* uri)
{
    RegisterQtComponentsTypes(uri);
}

void UIComponents_Plugin::initializeEngine(QQmlEngine* engine, const char*)
{
    // The component library lives in this library's resources as UIComponents.<Folder>.
    engine->addImportPath(QStringLiteral("qrc:/"));
}

} // namespace Orvo::UI::UIComponents
