#include "common/ComboBoxProxyModel.h"
#include "common/FilterItemsProxyModel.h"
#include "common/SimpleComboBoxProxyModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Orvo::UI::UIComponents;

namespace {

constexpr int c_nameRole = Qt::UserRole + 1;

// Items whose display text differs from their name, so that textRole is seen to matter.
std::unique_ptr<QStandardItemModel> MakeSource(const QStringList& names)
{
    auto model = std::make_unique<QStandardItemModel>();
    model->setItemRoleNames({ { Qt::DisplayRole, "display" }, { c_nameRole, "name" } });
    for (const QString& name : names) {
        auto* item = new QStandardItem(QStringLiteral("#") + name);
        item->setData(name, c_nameRole);
        model->appendRow(item);
    }
    return model;
}

// Like QML's ListModel: no roles until the first item, and a reset may bring others.
class LateRolesModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_texts.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return index.isValid() && role == m_role ? QVariant(m_texts.at(index.row())) : QVariant();
    }
    QHash<int, QByteArray> roleNames() const override
    {
        if (m_texts.isEmpty())
            return {};
        return { { m_role, m_roleName } };
    }
    void Append(const QString& text)
    {
        beginInsertRows({}, rowCount(), rowCount());
        m_texts << text;
        endInsertRows();
    }
    // The same texts under another role number.
    void Rename(int role, const QByteArray& name)
    {
        beginResetModel();
        m_role = role;
        m_roleName = name;
        endResetModel();
    }

private:
    QStringList m_texts;
    int m_role = Qt::UserRole + 7;
    QByteArray m_roleName = "name";
};

QStringList Shown(const ComboBoxProxyModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.textAt(row);
    return texts;
}

const QStringList c_sections { QStringLiteral("HEA 200"),
                               QStringLiteral("IPE 200"),
                               QStringLiteral("Rectangular hollow 200x100"),
                               QStringLiteral("IPE 300"),
                               QStringLiteral("Circulaire Ø 200"),
                               QStringLiteral("Pipe élancé") };

} // namespace

class tst_ComboBoxProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void shouldFilterAndRankBySearch_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("no search keeps the source order") << QString() << c_sections;
        QTest::newRow("spaces only are no search") << QStringLiteral("   ") << c_sections;
        QTest::newRow("word starts keep the source order")
            << QStringLiteral("200")
            << QStringList { QStringLiteral("HEA 200"), QStringLiteral("IPE 200"),
                             QStringLiteral("Rectangular hollow 200x100"),
                             QStringLiteral("Circulaire Ø 200") };
        QTest::newRow("whole text start ranks first")
            << QStringLiteral("ipe")
            << QStringList { QStringLiteral("IPE 200"), QStringLiteral("IPE 300"),
                             QStringLiteral("Pipe élancé") };
        QTest::newRow("words in any order")
            << QStringLiteral("200 ipe") << QStringList { QStringLiteral("IPE 200") };
        QTest::newRow("accents and case aside")
            << QStringLiteral("ELANCE") << QStringList { QStringLiteral("Pipe élancé") };
        QTest::newRow("every word must occur") << QStringLiteral("ipe 400") << QStringList {};
        QTest::newRow("exact text first")
            << QStringLiteral("ipe 300") << QStringList { QStringLiteral("IPE 300") };
    }

    void shouldFilterAndRankBySearch()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, expected);
        auto source = MakeSource(c_sections);
        ComboBoxProxyModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setSourceModel(source.get());
        model.setTextRole(QStringLiteral("name"));
        model.setSearchText(search);
        QCOMPARE(Shown(model), expected);
        QCOMPARE(model.count(), expected.size());
    }

    void shouldMapRowsBothWays()
    {
        auto source = MakeSource(c_sections);
        ComboBoxProxyModel model;
        model.setSourceModel(source.get());
        model.setTextRole(QStringLiteral("name"));
        model.setSearchText(QStringLiteral("300"));
        QCOMPARE(model.sourceRow(0), 3);
        QCOMPARE(model.rowOfSource(3), 0);
        QCOMPARE(model.rowOfSource(0), -1);
        QCOMPARE(model.sourceRow(1), -1);
        QCOMPARE(model.sourceRow(-1), -1);
        QCOMPARE(model.rowOfSource(99), -1);
        QCOMPARE(model.findText(QStringLiteral("ipe 300")), 0);
        QCOMPARE(model.findText(QStringLiteral("IPE 200")), -1);
    }

    void shouldFollowSourceChangesAndAnnounceCount()
    {
        auto source = MakeSource(c_sections);
        ComboBoxProxyModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setSourceModel(source.get());
        model.setTextRole(QStringLiteral("name"));
        model.setSearchText(QStringLiteral("ipe"));
        QSignalSpy count(&model, &ComboBoxProxyModel::countChanged);

        auto* item = new QStandardItem(QStringLiteral("#IPE 100"));
        item->setData(QStringLiteral("IPE 100"), c_nameRole);
        source->appendRow(item);
        QVERIFY(count.count() >= 1);
        QCOMPARE(model.count(), 4);
        // A row that stops matching leaves.
        source->item(1)->setData(QStringLiteral("UPN 200"), c_nameRole);
        QCOMPARE(Shown(model),
                 (QStringList { QStringLiteral("IPE 300"), QStringLiteral("IPE 100"),
                                QStringLiteral("Pipe élancé") }));
    }

    void shouldSearchNothingByAnUnknownRole()
    {
        auto source = MakeSource(c_sections);
        ComboBoxProxyModel model;
        model.setSourceModel(source.get());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no role \"title\"")));
        model.setTextRole(QStringLiteral("title"));
        QCOMPARE(model.count(), c_sections.size());
        model.setSearchText(QStringLiteral("ipe"));
        QCOMPARE(model.count(), 0);
    }

    // Both searchable lists look their text role up once, which must not keep a lookup made
    // before the source knew its roles, nor one of roles a reset replaced.
    void shouldFindTheTextRoleOnceTheSourceKnowsIt_data()
    {
        QTest::addColumn<bool>("multiSelect");
        QTest::newRow("combo box") << false;
        QTest::newRow("multi-select") << true;
    }

    void shouldFindTheTextRoleOnceTheSourceKnowsIt()
    {
        QFETCH(bool, multiSelect);
        LateRolesModel source;
        std::unique_ptr<SearchableProxyModel> model;
        if (multiSelect)
            model = std::make_unique<FilterItemsProxyModel>();
        else
            model = std::make_unique<ComboBoxProxyModel>();
        QAbstractItemModelTester tester(model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        model->setTextRole(QStringLiteral("name"));
        model->setSourceModel(&source);
        model->setSearchText(QStringLiteral("ipe"));
        QCOMPARE(model->count(), 0);
        source.Append(QStringLiteral("HEA 200"));
        source.Append(QStringLiteral("IPE 200"));
        QCOMPARE(model->count(), 1);
        QCOMPARE(model->index(0, 0).data(SearchableProxyModel::ItemTextRole).toString(),
                 QStringLiteral("IPE 200"));

        source.Rename(Qt::UserRole + 9, "name");
        QCOMPARE(model->count(), 1);
        QCOMPARE(model->index(0, 0).data(SearchableProxyModel::ItemTextRole).toString(),
                 QStringLiteral("IPE 200"));
    }

    void simpleModelShouldSearchItsItems_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<int>("firstSourceRow");
        QTest::newRow("all") << QString() << c_sections << 0;
        QTest::newRow("one") << QStringLiteral("hollow")
                             << QStringList { QStringLiteral("Rectangular hollow 200x100") } << 2;
        QTest::newRow("none") << QStringLiteral("zz") << QStringList {} << -1;
    }

    void simpleModelShouldSearchItsItems()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, expected);
        QFETCH(int, firstSourceRow);
        SimpleComboBoxProxyModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy items(&model, &SimpleComboBoxProxyModel::itemsChanged);
        model.setItems(c_sections);
        model.setItems(c_sections);
        QCOMPARE(items.count(), 1);
        model.setSearchText(search);
        QCOMPARE(Shown(model), expected);
        QCOMPARE(model.sourceRow(0), firstSourceRow);
        QCOMPARE(model.indexOf(QStringLiteral("pipe elance")), 5);
        QCOMPARE(model.indexOf(QStringLiteral("UPN")), -1);
    }
};

QTEST_MAIN(tst_ComboBoxProxyModel)
#include "tst_comboboxproxymodel.moc"
