#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "tables/TableContentModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::TestData;

namespace {

// Delegates of views are items without an object parent: look through the item tree.
QQuickItem* FindItem(QQuickItem* item, const QString& name)
{
    if (!item)
        return nullptr;
    if (item->objectName() == name)
        return item;
    const auto children = item->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = FindItem(child, name))
            return found;
    }
    return nullptr;
}

void TypeText(QWindow* window, const char* text)
{
    for (const char* character = text; *character; ++character)
        QTest::keyClick(window, *character);
}

} // namespace

// The table component of the library at work in a window: what a user does with mouse and keys
// reaches the models, and what the models say shows up.
class tst_ContentTableView : public QObject
{
    Q_OBJECT

private:
    struct Window
    {
        Window()
            : feeder(model)
        {
            model.setAllowEdit(true);
            model.setAllowAddNew(true);
            feeder.SetTable(MemberColumns(), MemberRows(60));
            feeder.Load();
            view.engine()->addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
            view.rootContext()->setContextProperty("testModel", &model);
            view.setSource(QUrl::fromLocalFile(QStringLiteral(QTC_TEST_DATA_DIR "/ContentTableHost.qml")));
            view.show();
        }
        QQuickItem* Find(const char* name) const
        {
            return FindItem(view.rootObject(), QString::fromLatin1(name));
        }
        QPoint CellCenter(int row, int column) const
        {
            QQuickItem* table = Find("contentTableView");
            QQuickItem* cell = nullptr;
            if (table)
                QMetaObject::invokeMethod(table, "itemAtCell", Q_RETURN_ARG(QQuickItem*, cell),
                                          Q_ARG(int, column), Q_ARG(int, row));
            return cell ? cell->mapToScene(QPointF(cell->width() / 2, cell->height() / 2)).toPoint()
                        : QPoint();
        }
        QModelIndex Current() const
        {
            return model.contentFilterModel()->selectionModel()->getCurrentSelectedIndex();
        }

        TableContentModel model;
        TableTestFeeder feeder;
        QQuickView view;
    };

private slots:
    void shouldShowTheRowsOfTheModel()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QCOMPARE(window.view.status(), QQuickView::Ready);
        QVERIFY(!window.CellCenter(0, 0).isNull());
        QVERIFY(window.Find("headerCell_4"));
    }

    void shouldSelectWithMouseAndKeys()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier, window.CellCenter(2, 1));
        QCOMPARE(window.Current(), window.model.contentFilterModel()->index(2, 1));
        QTest::keyClick(&window.view, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&window.view, Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY(window.model.selectionModel()->IsCellSelected(3, 2));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::ControlModifier, window.CellCenter(5, 0));
        QCOMPARE(window.model.selectionModel()->getRegionCount(), 2);
        QTest::keyClick(&window.view, Qt::Key_Right);
        QCOMPARE(window.Current(), window.model.contentFilterModel()->index(5, 1));
        QCOMPARE(window.model.selectionModel()->getRegionCount(), 1);
    }

    void shouldFilterFromTheFilterBar()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QQuickItem* field = window.Find("filterField_1");
        QVERIFY(field);
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier,
                          field->mapToScene(QPointF(field->width() / 2, field->height() / 2)).toPoint());
        TypeText(&window.view, "<1");
        QTest::keyClick(&window.view, Qt::Key_Return);
        // count is row % 7: rows 1, 8, 15, ... hold 0; plus the new-row line
        QTRY_COMPARE(window.model.contentFilterModel()->rowCount(), 9 + 1);
    }

    void shouldEditACellAndConfirm()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier, window.CellCenter(4, 0));
        TypeText(&window.view, "X1");
        QTest::keyClick(&window.view, Qt::Key_Return);
        QTRY_COMPARE(window.feeder.updates.size(), std::size_t(1));
        QCOMPARE(window.feeder.updates[0].GetValue(4, 0).toString(), QStringLiteral("X1"));
        QCOMPARE(window.model.data(window.model.index(4, 0), TableContentModel::ContentRole).toString(),
                 "X1");
    }

    void shouldSortFromTheHeader()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QQuickItem* header = window.Find("headerCell_2");
        QVERIFY(header);
        const int refills = window.feeder.refills;
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier,
                          header->mapToScene(QPointF(header->width() / 3, header->height() / 2)).toPoint());
        QCOMPARE(window.model.headerData(2, Qt::Horizontal, TableContentModel::SortOrderRole).toInt(),
                 int(TableContentModel::Ascending));
        QCOMPARE(window.feeder.refills, refills + 1);
    }

    void shouldCopyAndPasteWithTheKeyboard()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier, window.CellCenter(0, 0));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::ShiftModifier, window.CellCenter(1, 1));
        QTest::keyClick(&window.view, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Label name\tLabel count\nB1\t0\nB2\t1"));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier, window.CellCenter(10, 0));
        QTest::keyClick(&window.view, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window.feeder.updates.size(), std::size_t(1));
        QCOMPARE(window.model.data(window.model.index(11, 0), TableContentModel::ContentRole).toString(),
                 "B2");
    }

    void shouldApplyTheMultiEditBox()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window.view));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier, window.CellCenter(1, 1));
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::ShiftModifier, window.CellCenter(2, 1));
        QQuickItem* expression = window.Find("multiEditExpression");
        QVERIFY(expression);
        QTest::mouseClick(&window.view, Qt::LeftButton, Qt::NoModifier,
                          expression->mapToScene(QPointF(10, expression->height() / 2)).toPoint());
        TypeText(&window.view, "+10");
        QTest::keyClick(&window.view, Qt::Key_Return);
        QTRY_COMPARE(window.feeder.updates.size(), std::size_t(1));
        QCOMPARE(window.model.data(window.model.index(1, 1), TableContentModel::ContentRole).toInt(), 11);
        QCOMPARE(window.model.data(window.model.index(2, 1), TableContentModel::ContentRole).toInt(), 12);
    }
};

QTEST_MAIN(tst_ContentTableView)
#include "tst_contenttableview.moc"
