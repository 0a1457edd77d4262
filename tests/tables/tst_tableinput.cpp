#include "TestHost.h"
#include "commands/IUICommandProcessor.h"
#include "commands/UICommandProcessor.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "tables/TableInput.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>
#include <functional>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="c6d02f75-d199-457a-9a4d-f1246cb8feb4" name="UI_COMMAND_UNDO" shortcut="Ctrl+Z"/>
  <command uuid="2e4dd56a-f2b6-489b-9dd5-b3ee6a66e276" name="UI_COMMAND_REDO" shortcut="Ctrl+Y"/>
</commands>)";

// What a person sees of some columns of a table: one line per row, the cells' texts.
QStringList Shown(const TableContentModel& model, const QStringList& columnIds)
{
    QStringList lines;
    for (int row = 0; row < model.rowCountSubmitted(); ++row) {
        QStringList cells;
        for (const QString& id : columnIds)
            cells << model.index(row, model.FindColumnIndex(id))
                         .data(TableContentFilterModel::DisplayTextRole)
                         .toString();
        lines << cells.join(QLatin1Char(' '));
    }
    return lines;
}

using Edit = std::function<void(TableInput&)>;

void SelectBlock(TableContentModel& model, int top, const QString& leftId, int bottom, const QString& rightId)
{
    TableContentFilterModel& shown = *model.contentFilterModel();
    shown.selectionModel()->select(shown.index(top, model.FindColumnIndex(leftId)),
                                   TableSelectionModel::CleanSelect);
    shown.selectionModel()->selectRegion(shown.index(bottom, model.FindColumnIndex(rightId)),
                                         TableSelectionModel::CleanSelect);
}

} // namespace

Q_DECLARE_METATYPE(Edit)

// An input table panel over the host's portal frame (nodes 1 to 6 at x 0, 0, 6, 6, 12, 12; columns
// 1 to 3 and beams 4 and 5; member loads on the beams), used the ways a person changes a model in
// a table, each of which the host's Undo and Redo commands take back and do again.
class tst_TableInput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyChangeIsOneNamedStepThatTheCommandsWalk_data();
    void everyChangeIsOneNamedStepThatTheCommandsWalk();
    void refusedEditsSayWhyAndChangeNothing_data();
    void refusedEditsSayWhyAndChangeNothing();
    void editsMadeElsewhereShowAtOnce();
    void unknownTableStaysEmpty();

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_services;
    std::shared_ptr<StructuralModel> m_model;
};

void tst_TableInput::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->WriteFile("Configuration/Commands.xml", c_commands);
    m_services = m_host->StartServices();
    m_model = m_services->Get<StructuralModel>();
    m_model->Replace([](Structure& structure) { ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 }); });
}

void tst_TableInput::cleanup()
{
    m_model.reset();
    m_services.reset();
    m_host.reset();
}

void tst_TableInput::everyChangeIsOneNamedStepThatTheCommandsWalk_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns"); // shown before and after
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("step");

    const QStringList nodeColumns { "general.number", "node.x", "node.y" };
    QTest::newRow("typed cell") << "node" << nodeColumns << Edit([](TableInput& input) {
        TableContentModel& model = *input.contentModel();
        QVERIFY(model.setData(model.index(1, model.FindColumnIndex("node.x")), "=250cm",
                              TableContentModel::ContentRole));
        model.confirmUpdate();
    }) << "Set X of Node 2";
    QTest::newRow("paste into one column") << "node" << nodeColumns << Edit([](TableInput& input) {
        TableContentModel& model = *input.contentModel();
        SelectBlock(model, 2, "node.y", 2, "node.y");
        QGuiApplication::clipboard()->setText("1.5\n2,5\n");
        model.pasteFromClipboard();
        model.confirmUpdate();
    }) << "Set Y of 2 nodes";
    QTest::newRow("paste of a block") << "node" << nodeColumns << Edit([](TableInput& input) {
        TableContentModel& model = *input.contentModel();
        SelectBlock(model, 0, "node.x", 0, "node.x");
        QGuiApplication::clipboard()->setText("0.5\t1\n6.5\t2\n");
        model.pasteFromClipboard();
        model.confirmUpdate();
    }) << "Edit 4 cells in Nodes";
    QTest::newRow("multi-edit") << "node" << nodeColumns << Edit([](TableInput& input) {
        TableContentModel& model = *input.contentModel();
        SelectBlock(model, 0, "node.y", 2, "node.y");
        model.setDataForSelection(MultiEditAction::Add, "2");
        model.confirmUpdate();
    }) << "Set Y of 3 nodes";
    QTest::newRow("new row") << "node" << nodeColumns << Edit([](TableInput& input) {
        TableContentModel& model = *input.contentModel();
        const int newRow = model.newRowIndex();
        QVERIFY(model.setData(model.index(newRow, model.FindColumnIndex("node.x")), "18",
                              TableContentModel::ContentRole));
        model.confirmUpdate();
    }) << "Add a row to Nodes";
    QTest::newRow("reverse direction from a cell")
        << "member" << QStringList { "general.number", "member.startNode", "member.endNode" }
        << Edit([](TableInput& input) {
               TableContentModel& model = *input.contentModel();
               model.executeAction(model.index(3, model.FindColumnIndex("member.startNode")));
           })
        << "Reverse direction: Member 4";
    QTest::newRow("deleted rows") << "memberLoad" << QStringList { "general.number", "memberLoad.member" }
                                  << Edit([](TableInput& input) { QVERIFY(input.removeRows({ 0, 1 })); })
                                  << "Delete 2 member loads";
}

void tst_TableInput::everyChangeIsOneNamedStepThatTheCommandsWalk()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    QFETCH(Edit, edit);
    QFETCH(QString, step);
    TableInput input;
    input.setTableId(table);
    TableContentModel& model = *input.contentModel();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    auto processor = m_services->Get<IUICommandProcessor>();
    const QStringList before = Shown(model, columns);
    QVERIFY(!before.isEmpty());

    edit(input);
    const QStringList after = Shown(model, columns);
    QCOMPARE(input.message(), QString());
    QVERIFY2(after != before, "the table shows the change");
    QCOMPARE(m_model->UndoStack()->count(), 1);
    QCOMPARE(m_model->UndoStack()->undoText(), step);

    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_undoCommand, L"", L"HotkeyHandler"));
    QCOMPARE(Shown(model, columns), before);
    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_redoCommand, L"", L"HotkeyHandler"));
    QCOMPARE(Shown(model, columns), after);
}

void tst_TableInput::refusedEditsSayWhyAndChangeNothing_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<bool>("reachesTheHost"); // false: the table itself refuses the text

    QTest::newRow("a force in a length column")
        << "node" << 1 << "node.x" << "=5kN" << "kN is a force; this field takes a length" << false;
    QTest::newRow("a fraction in a whole-number column")
        << "member" << 0 << "member.endNode" << "2.5" << "2.5 is not a whole number" << false;
    QTest::newRow("letters in a number column") << "node" << 1 << "node.z" << "high" << "high is not a number" << false;
    QTest::newRow("a node that does not exist")
        << "member" << 0 << "member.endNode" << "99" << "There is no node 99" << true;
    QTest::newRow("a member without length")
        << "node" << 1 << "node.z" << "0" << "Member 1 would have no length: nodes 1 and 2 lie at the same place"
        << true;
}

void tst_TableInput::refusedEditsSayWhyAndChangeNothing()
{
    QFETCH(QString, table);
    QFETCH(int, row);
    QFETCH(QString, column);
    QFETCH(QString, typed);
    QFETCH(QString, reason);
    QFETCH(bool, reachesTheHost);
    TableInput input;
    input.setTableId(table);
    TableContentModel& model = *input.contentModel();
    TableContentFilterModel& shown = *model.contentFilterModel();
    const QModelIndex cell = shown.index(row, model.FindColumnIndex(column));
    const QString before = cell.data(TableContentFilterModel::DisplayTextRole).toString();
    QSignalSpy messages(&input, &TableInput::messageChanged);

    QCOMPARE(shown.typedTextRefusal(cell, typed), reachesTheHost ? QString() : reason);
    QCOMPARE(shown.setData(cell, typed, TableContentModel::ContentRole), reachesTheHost);
    shown.confirmUpdate();

    QCOMPARE(input.message(), reachesTheHost ? reason : QString());
    QCOMPARE(messages.count(), reachesTheHost ? 1 : 0);
    QCOMPARE(cell.data(TableContentFilterModel::DisplayTextRole).toString(), before);
    QCOMPARE(m_model->UndoStack()->count(), 0);
}

void tst_TableInput::editsMadeElsewhereShowAtOnce()
{
    TableInput input;
    input.setTableId("node");
    TableContentModel& model = *input.contentModel();
    QCOMPARE(input.label(), "Nodes");
    QCOMPARE(input.tableIds().mid(0, 2), QStringList({ "node", "member" }));
    QCOMPARE(input.tableLabels().mid(0, 2), QStringList({ "Nodes", "Members" }));
    QCOMPARE(model.rowCountSubmitted(), 6);

    m_model->SetValue({ MakeObjectId(ObjectKind::Node, 2) }, "node.x", 1.25);
    QCOMPARE(Shown(model, { "node.x" }).at(1), "1.250");
    m_model->AddObject(ObjectKind::Node, { { "node.x", 30.0 } });
    QCOMPARE(model.rowCountSubmitted(), 7);
}

void tst_TableInput::unknownTableStaysEmpty()
{
    TableInput input;
    QTest::ignoreMessage(QtWarningMsg, "TableInput: the host has no input table nothing");
    input.setTableId("nothing");
    QCOMPARE(input.contentModel()->columnCount(), 0);
    QCOMPARE(input.contentModel()->rowCountSubmitted(), 0);
    QVERIFY(!input.removeRows({ 0 }));
}

QTEST_MAIN(tst_TableInput)
#include "tst_tableinput.moc"
