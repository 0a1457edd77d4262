#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtTest>

#include <memory>

// The component library is reachable as UIComponents.<Folder> only through the import path
// that the plugin adds to each engine it initialises.
class tst_QmlImport : public QObject
{
    Q_OBJECT

    static std::unique_ptr<QQmlEngine> CreateEngine()
    {
        auto engine = std::make_unique<QQmlEngine>();
        engine->addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
        return engine;
    }

    static std::unique_ptr<QObject> Create(QQmlEngine& engine, const QByteArray& qml, QString* errors)
    {
        QQmlComponent component(&engine);
        component.setData(
            qml, QUrl::fromLocalFile(QDir::temp().absoluteFilePath(QStringLiteral("tst_qmlimport.qml"))));
        std::unique_ptr<QObject> object(component.create());
        *errors = component.errorString();
        return object;
    }

private slots:
    void shouldNotFindComponentLibraryWithoutInitializeEngine_data()
    {
        QTest::addColumn<QString>("module");
        QTest::newRow("singleton module") << QStringLiteral("UIComponents.Constants");
        QTest::newRow("module of documents") << QStringLiteral("UIComponents.Tables");
    }

    void shouldNotFindComponentLibraryWithoutInitializeEngine()
    {
        QFETCH(QString, module);
        // The plugin is loaded, so its resources are in the process: only the import path is missing.
        QPluginLoader loader(qEnvironmentVariable("QTC_PLUGIN_FILE"));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QVERIFY(QFile::exists(QStringLiteral(":/")
                              + QString(module).replace(QLatin1Char('.'), QLatin1Char('/'))
                              + QStringLiteral("/qmldir")));
        auto engine = CreateEngine();
        QString errors;
        auto object = Create(*engine, "import " + module.toUtf8() + "\nimport QtQml\nQtObject {}", &errors);
        QVERIFY(!object);
        QVERIFY2(errors.contains(module), qPrintable(errors));
    }

    void shouldFindComponentLibraryOnceTheModuleIsImported()
    {
        auto engine = CreateEngine();
        QString errors;
        auto object = Create(*engine,
                             "import QtQml\nimport Qml.QtComponents\nimport UIComponents.Constants\n"
                             "QtObject { property int step: UIComponentsConstants.tableColumnWidthStep;"
                             " property string ready: Strings.text('UI_APP_STATUS_READY') }",
                             &errors);
        QVERIFY2(object, qPrintable(errors));
        QCOMPARE(object->property("step").toInt(), 64);
        QCOMPARE(object->property("ready").toString(), QStringLiteral("Ready"));
    }

    void shouldAddOnlyTheResourceRootToTheEngine()
    {
        QPluginLoader loader(qEnvironmentVariable("QTC_PLUGIN_FILE"));
        auto* plugin = qobject_cast<QQmlExtensionPlugin*>(loader.instance());
        QVERIFY2(plugin, qPrintable(loader.errorString()));
        QQmlEngine engine;
        const QStringList before = engine.importPathList();
        QVERIFY(!before.contains(QLatin1String("qrc:/")));
        plugin->initializeEngine(&engine, "Qml.QtComponents");
        QStringList added = engine.importPathList();
        for (const QString& path : before)
            added.removeOne(path);
        QCOMPARE(added, QStringList { QStringLiteral("qrc:/") });

        QString errors;
        auto object = Create(engine,
                             "import QtQml\nimport UIComponents.Utilities\nQtObject { property real angle: "
                             "Geometry.screenAngle(0, -1) }",
                             &errors);
        QVERIFY2(object, qPrintable(errors));
        QCOMPARE(object->property("angle").toDouble(), 90.0);
    }
};

QTEST_MAIN(tst_QmlImport)
#include "tst_qmlimport.moc"
