#pragma once

#include <QQmlExtensionPlugin>

namespace Orvo::UI::UIComponents {

class UIComponents_Plugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    UIComponents_Plugin();

    void registerTypes(const char* uri) override;
    void initializeEngine(QQmlEngine* engine, const char* uri) override;
};

} // namespace Orvo::UI::UIComponents
