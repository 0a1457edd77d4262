#pragma once

#include "HostKitExport.h"

#include <QPointer>
#include <QQmlContext>

namespace Orvo::UI::QtExtensions {

// The QML context of the application's shell. What a panel publishes there (a context
// property) every document of the application sees. The host registers its engine's root
// context once the engine exists; the context is not owned, and reads as null once it is gone.
class HOSTKIT_EXPORT ShellQmlContext
{
public:
    void SetContext(QQmlContext* context);
    QQmlContext* GetContext() const;

private:
    QPointer<QQmlContext> m_context;
};

} // namespace Orvo::UI::QtExtensions
