#include "PropertiesTestSupport.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralObjectTypes.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTest>

using namespace Orvo::Kernel::Framework;
namespace Directories = Orvo::Kernel::Directories;

namespace {

// Delegates live in the visual tree, not always among an item's QObject children.
QQuickItem* FindItem(QQuickItem* root, const QString& objectName)
{
    if (!root)
        return nullptr;
    if (root->objectName() == objectName && root->isVisible())
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = FindItem(child, objectName))
            return found;
    }
    return nullptr;
}

} // namespace

// The panel's QML document in a window: what a user sees and does.
class tst_PropertiesPanelView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void foldingACategoryHidesItsRows();
    void typingIntoAnEditorChangesEverySelectedObject();
    void mixedValuesAreMarkedAndOffered();
    void advancedModeShowsEveryProperty();
    void hoveringAPropertyShowsItsIllustration();
    void foldedCategoriesSurviveReopening();

private:
    std::vector<ObjectId> OfType(const QString& type) const { return ObjectsOfType(*m_structure, type); }
    QQuickItem* Item(const QString& objectName) const { return FindItem(m_view->rootObject(), objectName); }
    int ListCount() const;
    void Click(QQuickItem* item);
    void SaveScreenshot(const QString& name);
    void OpenView();

    QTemporaryDir m_directory;
    std::shared_ptr<StructuralModel> m_structure;
    std::unique_ptr<QQuickView> m_view;
};

void tst_PropertiesPanelView::initTestCase()
{
    QVERIFY(m_directory.isValid());
    Directories::SetDirectory(Directories::DirectoryType::UserConfigurationDirectory,
                              Directories::ToPath(m_directory.filePath("config")));
    QFile document(m_directory.filePath("PanelWindow.qml"));
    QVERIFY(document.open(QIODevice::WriteOnly));
    // The plugin module comes first: loading it makes the component library importable.
    document.write("import QtQuick\n"
                   "import Qml.QtComponents\n"
                   "import UIComponents.PropertiesPanel\n"
                   "PropertiesPanel { objectName: \"panel\"; width: 380; height: 760 }\n");
}

void tst_PropertiesPanelView::init()
{
    // Every test starts from a user who never folded or switched anything.
    QFile::remove(m_directory.filePath("config/components.json"));
    auto catalog = ServiceCatalog::CreateWithDefaults();
    ServiceCatalog::SetGlobal(catalog);
    m_structure = catalog->Get<StructuralModel>();
    FillSampleFrame(*m_structure);

    OpenView();
}

void tst_PropertiesPanelView::OpenView()
{
    m_view = std::make_unique<QQuickView>();
    m_view->engine()->addImportPath(qEnvironmentVariable("QTC_QML_IMPORT_DIR"));
    m_view->setSource(QUrl::fromLocalFile(m_directory.filePath("PanelWindow.qml")));
    QVERIFY2(m_view->status() == QQuickView::Ready,
             qPrintable(m_view->errors().isEmpty() ? QString() : m_view->errors().constFirst().toString()));
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void tst_PropertiesPanelView::cleanup()
{
    m_view.reset();
    m_structure.reset();
    ServiceCatalog::SetGlobal(nullptr);
}

int tst_PropertiesPanelView::ListCount() const
{
    return Item("propertiesList")->property("count").toInt();
}

void tst_PropertiesPanelView::Click(QQuickItem* item)
{
    QVERIFY(item);
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre.toPoint());
}

void tst_PropertiesPanelView::SaveScreenshot(const QString& name)
{
    const QImage image = m_view->grabWindow();
    QVERIFY(!image.isNull());
    const QString directory = qEnvironmentVariable("QTC_SCREENSHOT_DIR");
    if (!directory.isEmpty())
        QVERIFY(image.save(QDir(directory).filePath(name + ".png")));
}

void tst_PropertiesPanelView::foldingACategoryHidesItsRows()
{
    m_structure->Select({ OfType(StructuralObjectTypes::c_node).front() });
    const QString geometryHeader = "categoryHeader_UI_PROPERTIES_CATEGORY_GEOMETRY";
    const QString xRow = "propertyRow_" + UuidOf("node.x");
    QTRY_VERIFY(Item(xRow));
    QVERIFY(Item("subcategoryHeader_Coordinates"));
    const int expanded = ListCount();
    SaveScreenshot("properties_expanded");

    Click(Item(geometryHeader));

    QTRY_COMPARE(ListCount(), expanded - 4); // the subcategory caption and X, Y, Z
    QVERIFY(!Item(xRow));
    QVERIFY(!Item("subcategoryHeader_Coordinates"));
    QVERIFY(Item(geometryHeader));
    QVERIFY(Item(geometryHeader)->property("collapsed").toBool());
    QVERIFY(Item("propertyRow_" + UuidOf("general.name")));
    SaveScreenshot("properties_geometry_folded");

    Click(Item(geometryHeader));
    QTRY_COMPARE(ListCount(), expanded);
    QTRY_VERIFY(Item(xRow));
}

void tst_PropertiesPanelView::typingIntoAnEditorChangesEverySelectedObject()
{
    const auto sections = OfType(StructuralObjectTypes::c_crossSection);
    m_structure->Select(sections);
    QQuickItem* row = nullptr;
    QTRY_VERIFY((row = Item("propertyRow_" + UuidOf("section.height"))));
    QQuickItem* field = FindItem(row, "numericInputField");
    QVERIFY(field);

    Click(field);
    QTRY_VERIFY(field->hasActiveFocus());
    for (const char key : QByteArray("=2*225"))
        QTest::keyClick(m_view.get(), key);
    QTest::keyClick(m_view.get(), Qt::Key_Return);

    for (ObjectId id : sections)
        QCOMPARE(std::get<double>((*m_structure->Value(id, "section.height"))), 450.0);
    QTRY_VERIFY(!FindItem(row, "mixedValuesButton"));
    QCOMPARE(field->property("text").toString(), "450");
}

void tst_PropertiesPanelView::mixedValuesAreMarkedAndOffered()
{
    const auto materials = OfType(StructuralObjectTypes::c_material);
    m_structure->Select(materials);
    const QString categoryRow = "propertyRow_" + UuidOf("material.category");
    QQuickItem* row = nullptr;
    QTRY_VERIFY((row = Item(categoryRow)));
    QQuickItem* listEditor = FindItem(row, "listEditor");
    QVERIFY(listEditor);
    QCOMPARE(listEditor->property("displayText").toString(), "Mixed");
    QQuickItem* mixedButton = FindItem(row, "mixedValuesButton");
    QVERIFY(mixedButton);
    QCOMPARE(mixedButton->property("valueCount").toInt(), 2);

    Click(mixedButton);
    auto* popup = mixedButton->findChild<QObject*>("mixedValuesPopup");
    QVERIFY(popup);
    QTRY_VERIFY(popup->property("opened").toBool());
    QTest::qWait(200);
    SaveScreenshot("properties_mixed_values");

    // The entries are Steel and Concrete; pick Concrete for every material.
    Click(FindItem(popup->property("contentItem").value<QQuickItem*>(), "mixedValue_1"));
    for (ObjectId id : materials)
        QCOMPARE(std::get<std::int32_t>((*m_structure->Value(id, "material.category"))), 1);
    // The rows are listed anew: concrete has a strength class where steel had a grade.
    QTRY_VERIFY(Item(categoryRow) && FindItem(Item(categoryRow), "listEditor"));
    QTRY_COMPARE(FindItem(Item(categoryRow), "listEditor")->property("displayText").toString(), "Concrete");
}

void tst_PropertiesPanelView::advancedModeShowsEveryProperty()
{
    m_structure->Select({ OfType(StructuralObjectTypes::c_member).front() });
    const QString flangeRow = "propertyRow_" + UuidOf("member.rotation");
    QTRY_VERIFY(Item("propertyRow_" + UuidOf("member.section")));
    QVERIFY(!Item(flangeRow));
    const int basic = ListCount();

    Click(Item("advancedModeButton"));

    QTRY_VERIFY(ListCount() > basic);
    // The plugin brings its own copy of the panel's class, so ask through properties.
    QObject* panel = m_view->rootObject();
    QVERIFY(!panel->property("inBasicMode").toBool());
    QVERIFY(!panel->property("userConfiguration").value<QObject*>()->property("inBasicMode").toBool());
    QTRY_VERIFY(Item(flangeRow));
    SaveScreenshot("properties_advanced");
}

void tst_PropertiesPanelView::hoveringAPropertyShowsItsIllustration()
{
    // The drawings ship in the application directory, beside the executables.
    QVERIFY(QFile::exists(QCoreApplication::applicationDirPath() + "/Illustrations/CrossSection.qml"));
    m_structure->Select({ OfType(StructuralObjectTypes::c_crossSection).front() });
    QQuickItem* row = nullptr;
    QTRY_VERIFY((row = Item("propertyRow_" + UuidOf("section.width"))));
    QVERIFY(!Item("illustrationView"));

    const QPointF over = row->mapToScene(QPointF(20, row->height() / 2));
    QTest::mouseMove(m_view.get(), over.toPoint());

    QTRY_VERIFY(Item("illustrationView"));
    QTRY_VERIFY(FindItem(Item("illustrationView"), "illustrationDrawing")->property("status").toInt() == 1);
    QCOMPARE(FindItem(Item("illustrationView"), "illustrationDrawing")
                 ->property("item")
                 .value<QObject*>()
                 ->property("subject")
                 .toString(),
             "section.width");
    SaveScreenshot("properties_illustration");

    QTest::mouseMove(m_view.get(),
                     Item("propertyRow_" + UuidOf("general.name"))->mapToScene(QPointF(20, 10)).toPoint());
    QTRY_VERIFY(!Item("illustrationView"));
}

void tst_PropertiesPanelView::foldedCategoriesSurviveReopening()
{
    m_structure->Select({ OfType(StructuralObjectTypes::c_support).front() });
    const QString supportHeader = "categoryHeader_UI_PROPERTIES_CATEGORY_SUPPORT";
    const QString supportRow = "propertyRow_" + UuidOf("support.type");
    QTRY_VERIFY(Item(supportRow));
    Click(Item(supportHeader));
    QTRY_VERIFY(!Item(supportRow));

    // The panel hands its configuration to the host as it changes; the host keeps it.
    m_view.reset();
    OpenView();

    QTRY_VERIFY(Item(supportHeader));
    QVERIFY(Item(supportHeader)->property("collapsed").toBool());
    QVERIFY(!Item(supportRow));
    QVERIFY(Item("expandAllButton"));
    Click(Item("expandAllButton"));
    QTRY_VERIFY(Item(supportRow));
}

QTEST_MAIN(tst_PropertiesPanelView)
#include "tst_propertiespanelview.moc"
