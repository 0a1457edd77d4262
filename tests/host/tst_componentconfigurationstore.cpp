#include "qtextensions/ComponentConfigurationStore.h"

#include <QTemporaryDir>
#include <QtTest>

using Orvo::UI::QtExtensions::ComponentConfigurationStore;

class tst_ComponentConfigurationStore : public QObject
{
    Q_OBJECT

private slots:
    void shouldFallBackToTheShippedDefault_data();
    void shouldFallBackToTheShippedDefault();
};

void tst_ComponentConfigurationStore::shouldFallBackToTheShippedDefault_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("storedByUser");
    QTest::addColumn<QString>("expected");
    QTest::newRow("never configured: the default") << "MarkingMenu" << false << "<marking_menu/>";
    QTest::newRow("the user's own wins") << "MarkingMenu" << true << "mine";
    QTest::newRow("no default shipped") << "PropertiesPanel" << false << "";
    QTest::newRow("prefix of a default is no match") << "Marking" << false << "";
    QTest::newRow("wildcard in a key is no pattern") << "Marking*" << false << "";
}

void tst_ComponentConfigurationStore::shouldFallBackToTheShippedDefault()
{
    QFETCH(QString, key);
    QFETCH(bool, storedByUser);
    QFETCH(QString, expected);
    QTemporaryDir directory;
    QDir(directory.path()).mkpath(QStringLiteral("defaults"));
    QFile shipped(directory.filePath(QStringLiteral("defaults/MarkingMenu.xml")));
    QVERIFY(shipped.open(QIODevice::WriteOnly));
    shipped.write("<marking_menu/>");
    shipped.close();

    ComponentConfigurationStore store(directory.filePath(QStringLiteral("components.json")).toStdWString(),
                                      directory.filePath(QStringLiteral("defaults")).toStdWString());
    if (storedByUser)
        store.Store(key, QStringLiteral("mine"));
    QCOMPARE(store.Load(key), expected);
}

QTEST_GUILESS_MAIN(tst_ComponentConfigurationStore)
#include "tst_componentconfigurationstore.moc"
