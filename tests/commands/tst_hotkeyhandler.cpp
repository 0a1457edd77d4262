#include "TestHost.h"
#include "qtextensions/ShellQmlContext.h"

#include <QAbstractItemModel>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QtTest>

using namespace Orvo::Kernel::Framework;

// The hotkey handler panel as the host loads it: its document from the component library.
class tst_HotkeyHandler : public QObject
{
    Q_OBJECT

    static constexpr const char* c_modelName = "hotkeyHandlerModel";
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<QQmlEngine> m_engine;

    std::unique_ptr<QObject> LoadPanel(QQmlContext& context)
    {
        QQmlComponent component(m_engine.get());
        component.setData("import QtQuick\nimport Qml.QtComponents\n"
                          "Loader { source: \"qrc:/UIComponents/HotkeyHandler/HotkeyHandler.qml\" }",
                          QUrl(QStringLiteral("qrc:/tst_hotkeyhandler/Shell.qml")));
        std::unique_ptr<QObject> loader(component.create(&context));
        if (!loader || !loader->property("item").value<QObject*>())
            qWarning() << "The panel did not load:" << component.errorString();
        return loader;
    }

    static QAbstractItemModel* Published(const QQmlContext& context)
    {
        return qobject_cast<QAbstractItemModel*>(context.contextProperty(c_modelName).value<QObject*>());
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), R"(<commands>
  <command uuid="node" name="UI_X" shortcut="Ctrl+Shift+N"/>
  <command uuid="confirm" name="UI_X" shortcut="Enter" parameters="apply"/>
  <command uuid="move" name="UI_X"/>
</commands>)");
        m_catalog = m_host->StartServices();
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
        QTest::failOnWarning(QRegularExpression(QStringLiteral("ReferenceError|TypeError")));
    }

    void cleanup()
    {
        m_engine.reset();
        m_catalog.reset();
        m_host.reset();
    }

    void shouldPublishItsShortcutsInTheShellContext()
    {
        // Given a host whose shell context is not the engine's root context
        QQmlContext shellContext(m_engine->rootContext());
        m_catalog->Get<Orvo::UI::QtExtensions::ShellQmlContext>()->SetContext(&shellContext);

        auto loader = LoadPanel(shellContext);

        // Then the model is there, filled from the repository at once, and one shortcut per row
        QAbstractItemModel* model = Published(shellContext);
        QVERIFY(model);
        QVERIFY(!m_engine->rootContext()->contextProperty(c_modelName).isValid());
        QCOMPARE(model->rowCount(), 3); // Ctrl+Shift+N, Enter, and Return for the Enter binding
        QVERIFY(model->property("shortcutsEnabled").toBool());
        int shortcuts = 0;
        for (const QQuickItem* delegate : loader->property("item").value<QQuickItem*>()->childItems()) {
            for (const QObject* child : delegate->children())
                shortcuts += child->inherits("QQuickShortcut") ? 1 : 0;
        }
        QCOMPARE(shortcuts, 3);
        // The panel's document reads the same model through its typed property
        QCOMPARE(loader->property("item").value<QObject*>()->property("model").value<QObject*>(), model);
    }

    void shouldUseItsEngineWithoutAShellContextAndWithdrawWhenItGoes()
    {
        auto loader = LoadPanel(*m_engine->rootContext());
        QVERIFY(Published(*m_engine->rootContext()));
        QCOMPARE(Published(*m_engine->rootContext())->rowCount(), 3);

        loader->setProperty("active", false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        // No reader may be handed the destroyed model
        QCOMPARE(m_engine->rootContext()->contextProperty(c_modelName).value<QObject*>(), nullptr);
    }
};

QTEST_MAIN(tst_HotkeyHandler)
#include "tst_hotkeyhandler.moc"
