#pragma once

#include "HotkeyHandlerModel.h"
#include "qtextensions/UIComponent.h"

#include <QPointer>
#include <QQmlContext>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of the hotkey handler panel. When the host loads it, it creates the model
// of the application's shortcuts and publishes it in the shell's QML context as
// "hotkeyHandlerModel", where any document of the shell finds it. The panel's own document
// reads it through the typed model property instead, which QML tools can check.
// The base is named in full: the QML type description finds base classes by their full name.
class HotkeyHandler : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(HotkeyHandler_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::HotkeyHandlerModel* model READ model NOTIFY modelChanged)

public:
    explicit HotkeyHandler(QQuickItem* parent = nullptr);
    ~HotkeyHandler() override;

    // The configuration text is not used: the shortcuts belong to the command repository.
    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;

    // Null until the host loads the panel.
    HotkeyHandlerModel* model() const { return m_model; }

    static constexpr const char* c_modelContextProperty = "hotkeyHandlerModel";

signals:
    void modelChanged();

private:
    QQmlContext* ShellContext() const;

    HotkeyHandlerModel* m_model = nullptr;
    QPointer<QQmlContext> m_publishedIn;
};

} // namespace Orvo::UI::UIComponents
