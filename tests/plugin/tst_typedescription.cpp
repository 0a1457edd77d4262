#include <QDir>
#include <QLibraryInfo>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/private/qqmlmetatype_p.h>
#include <QtQmlCompiler/private/qqmljsimporter_p.h>
#include <QtTest>

#include <memory>

// QML tools (qmllint, the language server, Qt Creator, qmlcachegen) know the module's native types
// only from the type description its qmldir names. The description is generated from the classes,
// but the registration is written by hand: a type registered without a description, or described
// without members QML can use, is what this test catches. It reads the module the way qmllint does.
class tst_TypeDescription : public QObject
{
    Q_OBJECT

    static constexpr const char* c_module = "Qml.QtComponents";

    QQmlEngine m_engine;
    QQmlJSImporter::ImportedTypes m_described;

    static QList<QQmlType> RegisteredTypes()
    {
        QList<QQmlType> types;
        for (const QQmlType& type : QQmlMetaType::qmlAllTypes()) {
            if (type.module() == QLatin1String(c_module))
                types << type;
        }
        return types;
    }

private slots:
    void initTestCase()
    {
        const QString importDirectory = qEnvironmentVariable("QTC_QML_IMPORT_DIR");
        // Importing the module loads the plugin, which registers its types.
        m_engine.addImportPath(importDirectory);
        QQmlComponent importer(&m_engine);
        importer.setData("import QtQml\nimport Qml.QtComponents\nQtObject {}", QUrl());
        std::unique_ptr<QObject> imported(importer.create());
        QVERIFY2(imported, qPrintable(importer.errorString()));

        QQmlJSImporter tools({ importDirectory, QLibraryInfo::path(QLibraryInfo::QmlImportsPath) }, nullptr);
        m_described = tools.importModule(QLatin1String(c_module));
        for (const QQmlJS::DiagnosticMessage& warning : tools.takeWarnings())
            QFAIL(qPrintable(warning.message));
        QVERIFY(!m_described.isEmpty());
    }

    void shouldDescribeEveryRegisteredTypeWithItsMembers_data()
    {
        QTest::addColumn<int>("index");
        const QList<QQmlType> types = RegisteredTypes();
        QVERIFY(!types.isEmpty());
        for (int i = 0; i < types.size(); ++i)
            QTest::newRow(qPrintable(types.at(i).elementName())) << i;
    }

    void shouldDescribeEveryRegisteredTypeWithItsMembers()
    {
        QFETCH(int, index);
        const QQmlType type = RegisteredTypes().at(index);
        const auto described = m_described.constFind(type.elementName());
        QVERIFY2(described != m_described.cend(), "registered but not described: QML_NAMED_ELEMENT missing?");
        const QQmlJSScope::ConstPtr scope = described->scope;
        QCOMPARE(scope->isSingleton(), type.isSingleton());

        // The members the class itself adds; inherited ones are described on its base type.
        const QMetaObject* metaObject = type.metaObject();
        for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
            const QString name = QString::fromLatin1(metaObject->property(i).name());
            QVERIFY2(scope->hasOwnProperty(name), qPrintable(QStringLiteral("property ") + name));
        }
        for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
            const QMetaMethod method = metaObject->method(i);
            if (method.access() != QMetaMethod::Public || method.methodType() == QMetaMethod::Constructor)
                continue;
            const QString name = QString::fromLatin1(method.name());
            QVERIFY2(scope->hasOwnMethod(name), qPrintable(QStringLiteral("method ") + name));
        }
        for (int i = metaObject->enumeratorOffset(); i < metaObject->enumeratorCount(); ++i) {
            const QString name = QString::fromLatin1(metaObject->enumerator(i).name());
            QVERIFY2(scope->hasOwnEnumeration(name), qPrintable(QStringLiteral("enum ") + name));
        }
    }

    void shouldDescribeOnlyRegisteredTypes()
    {
        QSet<QString> registered;
        for (const QQmlType& type : RegisteredTypes())
            registered.insert(type.elementName());
        for (auto it = m_described.cbegin(); it != m_described.cend(); ++it) {
            // The importer also lists the module and every type under its C++ name, marked by '$'.
            if (!it.key().startsWith(QLatin1Char('$')))
                QVERIFY2(registered.contains(it.key()),
                         qPrintable(it.key() + QStringLiteral(" is described but not registered")));
        }
    }
};

QTEST_MAIN(tst_TypeDescription)
#include "tst_typedescription.moc"
