#pragma once

#include "qtextensions/UIComponent.h"

#include <QPointer>
#include <QQmlContext>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

class HotkeyHandlerModel;

// The native half of the hotkey handler panel. When the host loads it, it creates the model
// of the application's shortcuts and publishes it in the shell's QML context as
// "hotkeyHandlerModel", where the panel's document (and any other) finds it.
// The base is named in full: the QML type description finds base classes by their full name.
class HotkeyHandler : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(HotkeyHandler_Cpp)

public:
    explicit HotkeyHandler(QQuickItem* parent = nullptr);
    ~HotkeyHandler() override;

    // The configuration text is not used: the shortcuts belong to the command repository.
    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;

    static constexpr const char* c_modelContextProperty = "hotkeyHandlerModel";

private:
    QQmlContext* ShellContext() const;

    HotkeyHandlerModel* m_model = nullptr;
    QPointer<QQmlContext> m_publishedIn;
};

} // namespace Orvo::UI::UIComponents
