#include "common/FilterItemsProxyModel.h"
#include "common/SelectionModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Orvo::UI::UIComponents;

namespace {

constexpr int c_idRole = Qt::UserRole + 1;

// Load cases: display text and a numeric id as the key.
std::unique_ptr<QStandardItemModel> MakeLoadCases()
{
    auto model = std::make_unique<QStandardItemModel>();
    model->setItemRoleNames({ { Qt::DisplayRole, "display" }, { c_idRole, "id" } });
    const QStringList names { QStringLiteral("Dead load"), QStringLiteral("Live load"),
                              QStringLiteral("Snow"), QStringLiteral("Wind X"), QStringLiteral("Wind Y") };
    for (int i = 0; i < names.size(); ++i) {
        auto* item = new QStandardItem(names.at(i));
        item->setData(10 + i, c_idRole);
        model->appendRow(item);
    }
    return model;
}

QVariantList Ids(std::initializer_list<int> ids)
{
    QVariantList list;
    for (int id : ids)
        list << id;
    return list;
}

} // namespace

class tst_SelectionModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<QStandardItemModel> m_source;
    std::unique_ptr<SelectionModel> m_selection;

private slots:
    void init()
    {
        m_source = MakeLoadCases();
        m_selection = std::make_unique<SelectionModel>();
        m_selection->setKeyRole(QStringLiteral("id"));
        m_selection->setModel(m_source.get());
    }

    void cleanup()
    {
        m_selection.reset();
        m_source.reset();
    }

    void shouldKeepSelectedKeysInModelOrder_data()
    {
        QTest::addColumn<bool>("multiple");
        QTest::addColumn<QVariantList>("asked");
        QTest::addColumn<QVariantList>("expected");
        QTest::addColumn<int>("checkState");
        QTest::newRow("model order") << true << Ids({ 13, 10 }) << Ids({ 10, 13 })
                                     << int(Qt::PartiallyChecked);
        QTest::newRow("repeats once") << true << Ids({ 11, 11 }) << Ids({ 11 }) << int(Qt::PartiallyChecked);
        QTest::newRow("unknown keys dropped")
            << true << Ids({ 99, 12 }) << Ids({ 12 }) << int(Qt::PartiallyChecked);
        QTest::newRow("all") << true << Ids({ 10, 11, 12, 13, 14 }) << Ids({ 10, 11, 12, 13, 14 })
                             << int(Qt::Checked);
        QTest::newRow("none") << true << QVariantList() << QVariantList() << int(Qt::Unchecked);
        QTest::newRow("single choice keeps the first")
            << false << Ids({ 13, 10 }) << Ids({ 13 }) << int(Qt::PartiallyChecked);
    }

    void shouldKeepSelectedKeysInModelOrder()
    {
        QFETCH(bool, multiple);
        QFETCH(QVariantList, asked);
        QFETCH(QVariantList, expected);
        QFETCH(int, checkState);
        m_selection->setMultiple(multiple);
        m_selection->setSelectedKeys(asked);
        QCOMPARE(m_selection->selectedKeys(), expected);
        QCOMPARE(m_selection->count(), expected.size());
        QCOMPARE(int(m_selection->checkState()), checkState);
    }

    void shouldSignalOnlyRealChanges()
    {
        QSignalSpy changed(m_selection.get(), &SelectionModel::selectionChanged);
        m_selection->setSelected(12, true);
        m_selection->setSelected(12, true);
        QCOMPARE(changed.count(), 1);
        m_selection->toggle(12);
        QCOMPARE(changed.count(), 2);
        QVERIFY(!m_selection->isSelected(12));
        m_selection->clear();
        QCOMPARE(changed.count(), 2);
        m_selection->selectAll();
        QCOMPARE(changed.count(), 3);
        QCOMPARE(m_selection->count(), 5);
    }

    void singleChoiceShouldReplace()
    {
        m_selection->setMultiple(false);
        m_selection->setSelected(10, true);
        m_selection->setSelected(14, true);
        QCOMPARE(m_selection->selectedKeys(), Ids({ 14 }));
        m_selection->setSelected(10, false);
        QCOMPARE(m_selection->selectedKeys(), Ids({ 14 }));
    }

    void shouldForgetItemsThatLeaveTheModel()
    {
        m_selection->setSelectedKeys(Ids({ 10, 12, 14 }));
        QSignalSpy changed(m_selection.get(), &SelectionModel::selectionChanged);
        m_source->removeRow(2);
        QCOMPARE(m_selection->selectedKeys(), Ids({ 10, 14 }));
        QVERIFY(changed.count() >= 1);
        // A key that changes under an item is a different item.
        m_source->item(0)->setData(99, c_idRole);
        QCOMPARE(m_selection->selectedKeys(), Ids({ 14 }));
        m_source->clear();
        QCOMPARE(m_selection->count(), 0);
    }

    void shouldGiveSelectedTextsInModelOrder()
    {
        m_selection->setSelectedKeys(Ids({ 13, 10 }));
        QCOMPARE(m_selection->selectedTexts(QStringLiteral("display")),
                 (QStringList { QStringLiteral("Dead load"), QStringLiteral("Wind X") }));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no role \"name\"")));
        QCOMPARE(m_selection->selectedTexts(QStringLiteral("name")), QStringList());
    }

    void filteredListShouldSelectWhatItShows_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QVariantList>("before");
        QTest::addColumn<int>("shown");
        QTest::addColumn<int>("checkStateBefore");
        QTest::addColumn<QVariantList>("afterSelectAll");
        QTest::addColumn<QVariantList>("afterDeselectAll");
        QTest::newRow("search keeps other choices")
            << QStringLiteral("wind") << Ids({ 10 }) << 2 << int(Qt::Unchecked) << Ids({ 10, 13, 14 })
            << Ids({ 10 });
        QTest::newRow("partly selected") << QStringLiteral("load") << Ids({ 11, 12 }) << 2
                                         << int(Qt::PartiallyChecked) << Ids({ 10, 11, 12 }) << Ids({ 12 });
        QTest::newRow("no search is everything")
            << QString() << Ids({}) << 5 << int(Qt::Unchecked) << Ids({ 10, 11, 12, 13, 14 }) << Ids({});
        QTest::newRow("nothing found changes nothing")
            << QStringLiteral("rain") << Ids({ 12 }) << 0 << int(Qt::Unchecked) << Ids({ 12 }) << Ids({ 12 });
    }

    void filteredListShouldSelectWhatItShows()
    {
        QFETCH(QString, search);
        QFETCH(QVariantList, before);
        QFETCH(int, shown);
        QFETCH(int, checkStateBefore);
        QFETCH(QVariantList, afterSelectAll);
        QFETCH(QVariantList, afterDeselectAll);
        FilterItemsProxyModel list;
        QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.setSourceModel(m_source.get());
        list.setSelectionModel(m_selection.get());
        m_selection->setSelectedKeys(before);
        list.setSearchText(search);
        QCOMPARE(list.count(), shown);
        QCOMPARE(int(list.checkState()), checkStateBefore);
        list.setAllSelected(true);
        QCOMPARE(m_selection->selectedKeys(), afterSelectAll);
        if (shown > 0)
            QCOMPARE(int(list.checkState()), int(Qt::Checked));
        list.setAllSelected(false);
        QCOMPARE(m_selection->selectedKeys(), afterDeselectAll);
    }

    void filteredListShouldReadAndWriteTheSelectedRole()
    {
        FilterItemsProxyModel list;
        QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.setSourceModel(m_source.get());
        list.setSelectionModel(m_selection.get());
        const int role = list.roleNames().key("selected");
        QCOMPARE(role, int(FilterItemsProxyModel::SelectedRole));
        QSignalSpy dataChanged(&list, &QAbstractItemModel::dataChanged);
        QVERIFY(list.setData(list.index(3, 0), true, role));
        QCOMPARE(m_selection->selectedKeys(), Ids({ 13 }));
        QVERIFY(list.index(3, 0).data(role).toBool());
        QVERIFY(!list.index(2, 0).data(role).toBool());
        QVERIFY(dataChanged.count() >= 1);
        list.toggle(3);
        QVERIFY(!list.index(3, 0).data(role).toBool());
    }

    void onlySelectedShouldFollowTheSelection()
    {
        FilterItemsProxyModel list;
        QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.setSourceModel(m_source.get());
        list.setSelectionModel(m_selection.get());
        list.setOnlySelected(true);
        QCOMPARE(list.count(), 0);
        m_selection->setSelectedKeys(Ids({ 11, 14 }));
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.index(1, 0).data().toString(), QStringLiteral("Wind Y"));
        m_selection->setSelected(11, false);
        QCOMPARE(list.count(), 1);
    }
};

QTEST_MAIN(tst_SelectionModel)
#include "tst_selectionmodel.moc"
