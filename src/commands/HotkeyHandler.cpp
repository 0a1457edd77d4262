#include "HotkeyHandler.h"

#include "HotkeyHandlerModel.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "qtextensions/ShellQmlContext.h"

#include <QQmlEngine>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::DebugOutput;
using Kernel::Framework::ServiceCatalog;

HotkeyHandler::HotkeyHandler(QQuickItem* parent)
    : UIComponent(parent)
{ }

HotkeyHandler::~HotkeyHandler()
{
    // The model goes with this panel; a context property left pointing at it would hand
    // every later reader a dangling object.
    if (m_publishedIn && m_model
        && m_publishedIn->contextProperty(QString::fromLatin1(c_modelContextProperty)).value<QObject*>()
            == m_model) {
        m_publishedIn->setContextProperty(QString::fromLatin1(c_modelContextProperty), nullptr);
    }
}

void HotkeyHandler::loadConfiguration(const QString&)
{
    if (m_model) {
        DebugOutput("The hotkey handler is loaded already; its shortcuts stay as they are");
        return;
    }
    const auto catalog = ServiceCatalog::Global();
    QQmlContext* context = ShellContext();
    m_model = new HotkeyHandlerModel(this, catalog->Get<Kernel::Framework::EventBus>());
    catalog->Inject(*m_model);
    emit modelChanged();
    if (!context) {
        DebugOutput("The hotkey handler has no QML context to publish its shortcuts in; none will work");
        return;
    }
    context->setContextProperty(QString::fromLatin1(c_modelContextProperty), m_model);
    m_publishedIn = context;
}

QString HotkeyHandler::saveConfiguration()
{
    return {};
}

QQmlContext* HotkeyHandler::ShellContext() const
{
    if (const auto shell = ServiceCatalog::Global()->Get<QtExtensions::ShellQmlContext>()) {
        if (QQmlContext* context = shell->GetContext())
            return context;
    }
    // A host that registered no shell context: the root context of the engine that made the
    // panel serves the same purpose for the documents of that engine.
    const QQmlEngine* engine = qmlEngine(this);
    return engine ? engine->rootContext() : nullptr;
}

} // namespace Orvo::UI::UIComponents
