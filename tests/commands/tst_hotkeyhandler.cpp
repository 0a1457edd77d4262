#include "TestHost.h"
#include "qtextensions/ShellQmlContext.h"

#include <QAbstractItemModel>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using Orvo::UI::QtExtensions::ShellQmlContext;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="node" name="UI_X" shortcut="Ctrl+Shift+N"/>
  <command uuid="confirm" name="UI_X" shortcut="Enter" parameters="apply"/>
  <command uuid="move" name="UI_X"/>
</commands>)";

// The panel as the host loads it: its document from the component library.
const QByteArray c_shell = R"(import QtQuick
import Qml.QtComponents
Loader { source: "qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml" })";

const char* const c_modelName = "hotkeyHandlerModel";

int ShortcutItems(const QQuickItem& panel)
{
    int count = 0;
    for (const QQuickItem* delegate : panel.childItems()) {
        for (const QObject* child : delegate->children()) {
            if (child->inherits("QQuickShortcut"))
                ++count;
        }
    }
    return count;
}

} // namespace

class tst_HotkeyHandler : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldPublishItsShortcutsInTheShellContext();
    void shouldUseItsEngineWithoutAShellContext();
    void shouldWithdrawItsModelWhenItGoes();

private:
    std::unique_ptr<QObject> LoadPanel(QQmlContext& context);

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<QQmlEngine> m_engine;
};

void tst_HotkeyHandler::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), c_commands);
    m_catalog = m_host->StartServices();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
    // The model is published after the document's bindings first ran: that must go unnoticed.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("ReferenceError|TypeError")));
}

void tst_HotkeyHandler::cleanup()
{
    m_engine.reset();
    m_catalog.reset();
    m_host.reset();
}

std::unique_ptr<QObject> tst_HotkeyHandler::LoadPanel(QQmlContext& context)
{
    QQmlComponent component(m_engine.get());
    component.setData(c_shell, QUrl(QStringLiteral("qrc:/tst_hotkeyhandler/Shell.qml")));
    std::unique_ptr<QObject> loader(component.create(&context));
    if (!loader) {
        qWarning() << component.errorString();
        return nullptr;
    }
    auto* panel = loader->property("item").value<QObject*>();
    if (!panel)
        qWarning() << "The hotkey handler document did not load";
    return loader;
}

void tst_HotkeyHandler::shouldPublishItsShortcutsInTheShellContext()
{
    // Given a host whose shell context is not the engine's root context
    QQmlContext shellContext(m_engine->rootContext());
    m_catalog->Get<ShellQmlContext>()->SetContext(&shellContext);

    auto loader = LoadPanel(shellContext);
    QVERIFY(loader);

    // Then the model is there, already filled from the repository
    auto* model
        = qobject_cast<QAbstractItemModel*>(shellContext.contextProperty(c_modelName).value<QObject*>());
    QVERIFY(model);
    QVERIFY(!m_engine->rootContext()->contextProperty(c_modelName).isValid());
    QCOMPARE(model->rowCount(), 3); // Ctrl+Shift+N, Enter, and Return for the Enter binding
    QVERIFY(model->property("shortcutsEnabled").toBool());
    // And the document made one shortcut per row
    QCOMPARE(ShortcutItems(*loader->property("item").value<QQuickItem*>()), 3);
}

void tst_HotkeyHandler::shouldUseItsEngineWithoutAShellContext()
{
    auto loader = LoadPanel(*m_engine->rootContext());
    QVERIFY(loader);

    auto* model = qobject_cast<QAbstractItemModel*>(
        m_engine->rootContext()->contextProperty(c_modelName).value<QObject*>());
    QVERIFY(model);
    QCOMPARE(model->rowCount(), 3);
}

void tst_HotkeyHandler::shouldWithdrawItsModelWhenItGoes()
{
    auto loader = LoadPanel(*m_engine->rootContext());
    QVERIFY(loader);
    QVERIFY(m_engine->rootContext()->contextProperty(c_modelName).value<QObject*>());

    loader->setProperty("active", false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(m_engine->rootContext()->contextProperty(c_modelName).value<QObject*>(), nullptr);
}

QTEST_MAIN(tst_HotkeyHandler)
#include "tst_hotkeyhandler.moc"
