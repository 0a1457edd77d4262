#include "PropertiesTestSupport.h"
#include "commands/IUICommandProcessor.h"
#include "commands/UICommandProcessor.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "model/ModelGenerator.h"
#include "properties/PropertiesPanel.h"
#include "properties/PropertiesRoles.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralObjectTypes.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

using namespace Orvo::UI::UIComponents;
using namespace Orvo::UI::UIComponents::PropertiesRoles;
using namespace Orvo::Kernel::Framework;
namespace Directories = Orvo::Kernel::Directories;

namespace {

const QString c_geometry = QStringLiteral("UI_PROPERTIES_CATEGORY_GEOMETRY");

QStringList Categories(const QAbstractItemModel& model)
{
    QStringList categories;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (index.data(typeRole).toInt() == c_categoryType)
            categories << index.data(categoryRole).toString().remove("UI_PROPERTIES_CATEGORY_");
    }
    return categories;
}

QStringList EntityNames(const EntityModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        names << QStringLiteral("%1 %2")
                     .arg(index.data(EntityModel::countRole).toInt())
                     .arg(index.data().toString());
    }
    return names;
}

} // namespace

class tst_PropertiesPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void followsTheHostSelection();
    void entityChoiceNarrowsTheObjects();
    void editsAndHostChangesReachTheList();
    void editsAreStepsThatTheUndoCommandsWalk();
    void resetToDefaultsKeepsWhatHasNoDefault();
    void refusedValueShowsWhy_data();
    void refusedValueShowsWhy();
    void shapeDecidesItsDimensionsAndDrawing();
    void configurationSurvivesSaveAndLoad();
    void unreadableConfigurationGivesDefaults_data();
    void unreadableConfigurationGivesDefaults();
    void actionsRunOnTheCurrentObjects();
    void illustrationOfTheProperty();
    void hostEventsAfterThePanelIsGoneAreHarmless();

private:
    std::vector<ObjectId> OfType(const QString& type) const { return ObjectsOfType(*m_structure, type); }
    void WriteIllustration(const QString& name)
    {
        QVERIFY(QDir().mkpath(m_directory.filePath("application/Illustrations")));
        QFile file(m_directory.filePath("application/Illustrations/" + name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\nItem {}\n");
    }

    QTemporaryDir m_directory;
    std::shared_ptr<StructuralModel> m_structure;
    std::unique_ptr<PropertiesPanel> m_panel;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_PropertiesPanel::initTestCase()
{
    QVERIFY(m_directory.isValid());
    QVERIFY(QDir().mkpath(m_directory.filePath("application/Configuration")));
    QFile commands(m_directory.filePath("application/Configuration/Commands.xml"));
    QVERIFY(commands.open(QIODevice::WriteOnly));
    commands.write(R"(<commands>
  <command uuid="c6d02f75-d199-457a-9a4d-f1246cb8feb4" name="UI_COMMAND_UNDO" shortcut="Ctrl+Z"/>
  <command uuid="2e4dd56a-f2b6-489b-9dd5-b3ee6a66e276" name="UI_COMMAND_REDO" shortcut="Ctrl+Y"/>
</commands>)");
    commands.close();
    Directories::SetDirectory(Directories::DirectoryType::UserConfigurationDirectory,
                              Directories::ToPath(m_directory.filePath("config")));
    Directories::SetDirectory(Directories::DirectoryType::ApplicationDirectory,
                              Directories::ToPath(m_directory.filePath("application")));
}

void tst_PropertiesPanel::init()
{
    auto catalog = ServiceCatalog::CreateWithDefaults();
    ServiceCatalog::SetGlobal(catalog);
    m_structure = catalog->Get<StructuralModel>();
    FillSampleFrame(*m_structure);
    m_panel = std::make_unique<PropertiesPanel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_panel->propertiesModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_PropertiesPanel::cleanup()
{
    m_tester.reset();
    m_panel.reset();
    m_structure.reset();
    ServiceCatalog::SetGlobal(nullptr);
}

void tst_PropertiesPanel::followsTheHostSelection()
{
    QSignalSpy selectionChanged(m_panel.get(), &PropertiesPanel::selectionChanged);
    QVERIFY(selectionChanged.isValid());
    QCOMPARE(m_panel->title(), "No selection");
    const auto members = OfType(StructuralObjectTypes::c_member);

    m_structure->Select({ members[0], members[1] });
    QCOMPARE(selectionChanged.count(), 1);
    QCOMPARE(m_panel->selectedCount(), 2);
    QCOMPARE(m_panel->title(), "2 objects selected");
    // Number and name differ and hide, the comment is advanced: nothing general is left.
    QCOMPARE(Categories(*m_panel->propertiesModel()),
             (QStringList { "GEOMETRY", "CROSS_SECTION", "MATERIAL" }));

    // Numbers count per kind from 1.
    m_structure->Select({ members[2] });
    QCOMPARE(m_panel->title(), QStringLiteral("Member 3"));

    m_structure->Select({});
    QCOMPARE(m_panel->propertiesModel()->rowCount(), 0);
    QCOMPARE(m_panel->title(), "No selection");
}

void tst_PropertiesPanel::entityChoiceNarrowsTheObjects()
{
    const auto nodes = OfType(StructuralObjectTypes::c_node);
    const auto members = OfType(StructuralObjectTypes::c_member);
    EntityModel& entities = *m_panel->entityModel();

    m_structure->Select({ nodes[0], members[0], members[1] });
    QCOMPARE(EntityNames(entities), (QStringList { "3 All objects", "1 Node", "2 Members" }));
    QCOMPARE(entities.currentIndex(), 0);
    QCOMPARE(Categories(*m_panel->propertiesModel()), QStringList());

    entities.setCurrentIndex(2);
    QCOMPARE(m_panel->sourceModel()->ShownObjects(), (std::vector<ObjectId> { members[0], members[1] }));
    QVERIFY(Categories(*m_panel->propertiesModel()).contains("CROSS_SECTION"));

    // Another selection with members in it stays on the members.
    m_structure->Select({ members[3], nodes[1] });
    QCOMPARE(EntityNames(entities), (QStringList { "2 All objects", "1 Member", "1 Node" }));
    QCOMPARE(entities.currentIndex(), 1);
    QCOMPARE(m_panel->sourceModel()->ShownObjects(), std::vector<ObjectId> { members[3] });

    QTest::ignoreMessage(QtWarningMsg, "EntityModel: there is no entry 3");
    entities.setCurrentIndex(3);
    QCOMPARE(entities.currentIndex(), 1);
}

void tst_PropertiesPanel::editsAndHostChangesReachTheList()
{
    const auto sections = OfType(StructuralObjectTypes::c_crossSection);
    m_structure->Select(sections);
    const QString height = UuidOf("section.height");

    QVERIFY(m_panel->setValue(500, height));
    for (ObjectId id : sections)
        QCOMPARE(std::get<double>(*m_structure->Value(id, "section.height")), 500.0);

    m_structure->Assign(sections[1], "section.height", 320.0);
    const QModelIndex row = m_panel->sourceModel()->index(m_panel->sourceModel()->FindRow(height));
    QVERIFY(row.data(mixedRole).toBool());
    QCOMPARE(row.data(mixedValuesRole).toList().mid(0, 2), (QVariantList { 500.0, 320.0 }));
}

void tst_PropertiesPanel::editsAreStepsThatTheUndoCommandsWalk()
{
    const auto sections = OfType(StructuralObjectTypes::c_crossSection);
    m_structure->Select(sections);
    const QString height = UuidOf("section.height");
    PropertiesModel& rows = *m_panel->sourceModel();
    const auto shownHeight = [&]() { return rows.index(rows.FindRow(height)).data(valueRole); };
    const QVariant before = shownHeight();
    auto processor = ServiceCatalog::Global()->Get<IUICommandProcessor>();

    QVERIFY(m_panel->setValue(500, height));
    QCOMPARE(m_structure->UndoStack()->undoText(), "Set Height h of 2 cross-sections");
    QCOMPARE(shownHeight(), QVariant(500.0));

    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_undoCommand, L"", L"HotkeyHandler"));
    QCOMPARE(shownHeight(), before);
    QVERIFY(processor->ExecuteCommand(UICommandProcessor::c_redoCommand, L"", L"HotkeyHandler"));
    QCOMPARE(shownHeight(), QVariant(500.0));
}

void tst_PropertiesPanel::resetToDefaultsKeepsWhatHasNoDefault()
{
    const auto sections = OfType(StructuralObjectTypes::c_crossSection);
    m_structure->Select(sections);
    QVERIFY(m_panel->setValue(500, UuidOf("section.height")));
    QUndoStack& undo = *m_structure->UndoStack();
    const int steps = undo.count();

    QCOMPARE(m_panel->actionsModel()->index(0).data().toString(), "Reset to defaults");
    QVERIFY(m_panel->runAction(0));

    QCOMPARE(undo.count(), steps + 1);
    QCOMPARE(undo.undoText(), "Reset to defaults: 2 cross-sections");
    QCOMPARE(std::get<double>(*m_structure->Value(sections[0], "section.height")), 300.0);
    QCOMPARE(std::get<QString>(*m_structure->Value(sections[0], "general.name")), "HEB 300");
    QCOMPARE(std::get<QString>(*m_structure->Value(sections[1], "general.name")), "IPE 400");
    const auto nodes = OfType(StructuralObjectTypes::c_node);
    m_structure->Select({ nodes[1] });
    QVERIFY(!m_panel->runAction(0)); // coordinates have no default: nothing to reset
    QCOMPARE(std::get<double>(*m_structure->Value(nodes[1], "node.z")), 4.5);

    undo.undo();
    QCOMPARE(std::get<double>(*m_structure->Value(sections[0], "section.height")), 500.0);
}

void tst_PropertiesPanel::refusedValueShowsWhy_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("message");

    QTest::newRow("no such node") << "member.endNode" << QVariant(99) << "There is no node 99";
    QTest::newRow("its own start node")
        << "member.endNode" << QVariant(1) << "A member cannot start and end at the same node (1)";
    QTest::newRow("no such section") << "member.section" << QVariant(9) << "There is no cross-section 9";
}

void tst_PropertiesPanel::refusedValueShowsWhy()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, message);
    const ObjectId member = OfType(StructuralObjectTypes::c_member).front();
    m_structure->Select({ member });
    QSignalSpy messageChanged(m_panel.get(), &PropertiesPanel::messageChanged);
    const PropertyValue before = *m_structure->Value(member, key);

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("keeps its value"));
    QVERIFY(!m_panel->setValue(value, UuidOf(key)));

    QCOMPARE(m_panel->message(), message);
    QCOMPARE(*m_structure->Value(member, key), before);
    QVERIFY(m_panel->setValue(4, UuidOf("member.endNode")));
    QCOMPARE(m_panel->message(), QString());
    QCOMPARE(messageChanged.count(), 2);
}

void tst_PropertiesPanel::shapeDecidesItsDimensionsAndDrawing()
{
    WriteIllustration("CrossSection.qml");
    WriteIllustration("SectionCircle.qml");
    const ObjectId section = OfType(StructuralObjectTypes::c_crossSection).front();
    m_structure->Select({ section });
    m_panel->setInBasicMode(false);
    m_panel->showIllustration(UuidOf("section.shape"));
    QVERIFY(m_panel->illustration()->source().endsWith("Illustrations/CrossSection.qml"));
    PropertiesModel& rows = *m_panel->sourceModel();
    QVERIFY(rows.FindRow(UuidOf("section.height")) >= 0);

    QVERIFY(m_panel->setValue(4, UuidOf("section.shape"))); // Circle

    QCOMPARE(rows.FindRow(UuidOf("section.height")), -1);
    QCOMPARE(rows.FindRow(UuidOf("section.width")), -1);
    QCOMPARE(rows.FindRow(UuidOf("section.flangeThickness")), -1);
    QVERIFY(rows.FindRow(UuidOf("section.diameter")) >= 0);
    QVERIFY(m_panel->illustration()->source().endsWith("Illustrations/SectionCircle.qml"));
}

void tst_PropertiesPanel::configurationSurvivesSaveAndLoad()
{
    m_structure->Select({ OfType(StructuralObjectTypes::c_node).front() });
    m_panel->toggleCategory(c_geometry);
    m_panel->setInBasicMode(false);
    m_panel->userConfiguration()->setIllustrationVisible(false);
    const QString saved = m_panel->saveConfiguration();

    PropertiesPanel restored;
    QSignalSpy basicModeChanged(&restored, &PropertiesPanel::inBasicModeChanged);
    QVERIFY(basicModeChanged.isValid());
    restored.loadConfiguration(saved);

    QCOMPARE(basicModeChanged.count(), 1);
    QVERIFY(!restored.isInBasicMode());
    QVERIFY(!restored.userConfiguration()->illustrationVisible());
    QVERIFY(restored.propertiesModel()->isCategoryCollapsed(c_geometry));
    const auto* source = restored.sourceModel();
    const QModelIndex header = source->index(source->FindRow(UuidOf("node.x")));
    QVERIFY(header.data(isCollapsedRole).toBool());

    restored.toggleCategory(c_geometry);
    QVERIFY(!restored.propertiesModel()->isCategoryCollapsed(c_geometry));
    QVERIFY(restored.userConfiguration()->collapsedCategories().isEmpty());
}

void tst_PropertiesPanel::unreadableConfigurationGivesDefaults_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QStringList>("collapsed");
    QTest::addColumn<bool>("basic");

    QTest::newRow("nothing stored yet") << ""
                                        << "" << QStringList() << true;
    QTest::newRow("not JSON") << "{collapsed"
                              << "unreadable" << QStringList() << true;
    QTest::newRow("not an object") << "[\"Geometry\"]"
                                   << "unreadable" << QStringList() << true;
    QTest::newRow("categories not a list") << R"({"collapsedCategories": "Geometry", "inBasicMode": false})"
                                           << "not a list" << QStringList() << false;
    QTest::newRow("a category that is no name") << R"({"collapsedCategories": ["Support", 4, "Support"]})"
                                                << "is not a name" << QStringList { "Support" } << true;
    QTest::newRow("basic mode not a bool") << R"({"inBasicMode": "no"})"
                                           << "not true or false" << QStringList() << true;
}

void tst_PropertiesPanel::unreadableConfigurationGivesDefaults()
{
    QFETCH(QString, text);
    QFETCH(QString, warning);
    QFETCH(QStringList, collapsed);
    QFETCH(bool, basic);
    m_panel->loadConfiguration(R"({"collapsedCategories": ["Display"], "inBasicMode": false})");

    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    m_panel->loadConfiguration(text);

    QCOMPARE(m_panel->userConfiguration()->collapsedCategories(), collapsed);
    QCOMPARE(m_panel->propertiesModel()->isCategoryCollapsed("Display"), false);
    QCOMPARE(m_panel->isInBasicMode(), basic);
}

void tst_PropertiesPanel::actionsRunOnTheCurrentObjects()
{
    const ObjectId member = OfType(StructuralObjectTypes::c_member).front();
    m_structure->Select({ member });
    const ActionsModel& actions = *m_panel->actionsModel();
    QCOMPARE(actions.rowCount(), 2);
    QCOMPARE(actions.index(1).data().toString(), "Reverse direction");
    const PropertyValue start = (*m_structure->Value(member, "member.startNode"));
    const PropertyValue end = (*m_structure->Value(member, "member.endNode"));

    QVERIFY(m_panel->runAction(1));
    QCOMPARE((*m_structure->Value(member, "member.startNode")), end);
    QCOMPARE((*m_structure->Value(member, "member.endNode")), start);

    QTest::ignoreMessage(QtWarningMsg, "runAction: there is no action 7");
    QVERIFY(!m_panel->runAction(7));
}

void tst_PropertiesPanel::illustrationOfTheProperty()
{
    WriteIllustration("CrossSection.qml");
    QFile image(m_directory.filePath("application/Illustrations/CrossSection.qml"));
    m_structure->Select({ OfType(StructuralObjectTypes::c_crossSection).front() });
    IllustrationData& illustration = *m_panel->illustration();
    QSignalSpy availableChanged(&illustration, &IllustrationData::availableChanged);
    QVERIFY(availableChanged.isValid());

    m_panel->showIllustration(UuidOf("section.height"));
    QVERIFY(illustration.isAvailable());
    QVERIFY(illustration.source().startsWith("file:"));
    QVERIFY(illustration.source().endsWith("application/Illustrations/CrossSection.qml"));
    QCOMPARE(illustration.title(), "Height h");
    QCOMPARE(illustration.subject(), "section.height");
    QCOMPARE(availableChanged.count(), 1);

    m_panel->showIllustration(UuidOf("general.name"));
    QVERIFY(!illustration.isAvailable());

    QVERIFY(image.remove());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Illustration .*CrossSection.qml is missing"));
    m_panel->showIllustration(UuidOf("section.width"));
    QVERIFY(!illustration.isAvailable());
}

void tst_PropertiesPanel::hostEventsAfterThePanelIsGoneAreHarmless()
{
    m_tester.reset();
    m_panel.reset();
    const auto nodes = OfType(StructuralObjectTypes::c_node);
    m_structure->Select(nodes);
    QCOMPARE(m_structure->SetValue(nodes, "node.y", 1.0).changed, static_cast<int>(nodes.size()));
}

QTEST_MAIN(tst_PropertiesPanel)
#include "tst_propertiespanel.moc"
