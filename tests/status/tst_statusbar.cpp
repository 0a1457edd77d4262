#include "TestHost.h"
#include "analysis/AnalysisService.h"
#include "basiccomponents/DisplayUnits.h"
#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "graphic/ViewportEvents.h"
#include "model/ActiveEntities.h"
#include "model/ModelGenerator.h"
#include "properties/PropertiesModel.h"
#include "properties/PropertiesRoles.h"
#include "properties/StructuralModel.h"
#include "status/StatusBar.h"
#include "tables/TableDataCatalog.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo;
using namespace Orvo::UI::UIComponents;
using Kernel::Framework::EventBus;
using Kernel::Framework::ServiceCatalog;
using Kernel::Framework::StructuralModel;
using UI::BasicComponents::DisplayUnits;

namespace {

// The second node of the portal frame: at the top of the first column, 4.5 m up.
constexpr int c_topNodeRecord = 1;
constexpr double c_height = 4.5;

} // namespace

class tst_StatusBar : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_catalog = m_host->StartServices();
        m_catalog->Get<StructuralModel>()->Replace([](Kernel::Model::Structure& structure) {
            Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, c_height });
        });
        m_data = std::make_unique<StatusBarDataModel>();
        m_snapsTester = std::make_unique<QAbstractItemModelTester>(
            m_data->snapping()->snaps(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_snapsTester.reset();
        m_data.reset();
        m_catalog.reset();
        m_host.reset();
    }

    void shouldShowEveryValueInTheChosenUnit_data()
    {
        QTest::addColumn<int>("quantity");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("tableId");
        QTest::addColumn<QString>("property");
        QTest::addColumn<double>("factor");
        QTest::addColumn<int>("decimals");
        QTest::newRow("a node's height in millimetres") << int(UnitsSubDataModel::Length) << "mm"
                                                        << "node"
                                                        << "node.z" << 1000.0 << 0;
        QTest::newRow("a node's height in centimetres") << int(UnitsSubDataModel::Length) << "cm"
                                                        << "node"
                                                        << "node.z" << 100.0 << 1;
        QTest::newRow("a modulus in gigapascals") << int(UnitsSubDataModel::Stress) << "GPa"
                                                  << "material"
                                                  << "material.elasticModulus" << 0.001 << 3;
        QTest::newRow("a length unit leaves stresses alone") << int(UnitsSubDataModel::Length) << "mm"
                                                             << "material"
                                                             << "material.elasticModulus" << 1.0 << 0;
    }

    void shouldShowEveryValueInTheChosenUnit()
    {
        QFETCH(int, quantity);
        QFETCH(QString, unit);
        QFETCH(QString, tableId);
        QFETCH(QString, property);
        QFETCH(double, factor);
        QFETCH(int, decimals);

        // Given a table and a properties panel showing the first object, in the default units
        auto model = m_catalog->Get<StructuralModel>();
        auto table
            = m_catalog->Get<Kernel::Tables::TableDataCatalog>()->FindInputTable(tableId.toStdWString());
        QVERIFY(table);
        const double before
            = table->GetCells(c_topNodeRecord, 1, { property.toStdWString() })[0].cells[0].content.toDouble();
        PropertiesModel properties;
        QAbstractItemModelTester tester(&properties, QAbstractItemModelTester::FailureReportingMode::QtTest);
        properties.ShowObjects(model, { table->GetObjectAt(c_topNodeRecord) });
        const int row = properties.FindRow(
            Kernel::Framework::PropertyDefinition(property, Kernel::Framework::PropertyType::Bool, QString())
                .uuid);
        QVERIFY(row >= 0);
        const QVariant panelBefore = properties.index(row).data(PropertiesRoles::valueRole);
        const QString unitBefore = properties.index(row).data(PropertiesRoles::unitsRole).toString();
        QSignalSpy panelChanged(&properties, &QAbstractItemModel::dataChanged);
        QSignalSpy unitsChanged(m_data->units(), &UnitsSubDataModel::unitsChanged);

        // When the user picks another unit in the status bar
        QVERIFY(m_data->units()->setUnit(quantity, unit));

        // Then the table, the panel and the bar show the value converted, with decimals to match
        QCOMPARE(unitsChanged.count(), 1);
        QVERIFY(!panelChanged.isEmpty());
        const auto cell = table->GetCells(c_topNodeRecord, 1, { property.toStdWString() })[0].cells[0];
        QCOMPARE(cell.content.toDouble(), before * factor);
        QCOMPARE(int(cell.decimals.value_or(-1)), decimals);
        const auto columns = table->GetColumns();
        const auto column = std::find_if(columns.begin(), columns.end(),
                                         [&](const auto& c) { return c.id == property.toStdWString(); });
        QVERIFY(column != columns.end());
        QCOMPARE(column->unit, factor == 1.0 ? unitBefore : unit);
        QCOMPARE(properties.index(row).data(PropertiesRoles::valueRole).toDouble(),
                 panelBefore.toDouble() * factor);
        QCOMPARE(properties.index(row).data(PropertiesRoles::unitsRole).toString(), column->unit);
        QCOMPARE(properties.index(row).data(PropertiesRoles::decimalsRole).toInt(), decimals);

        // And a value typed in the new unit is kept in the model's own
        QVERIFY(properties.setData(properties.index(row), before * factor * 2, Qt::EditRole));
        QCOMPARE(
            table->GetCells(c_topNodeRecord, 1, { property.toStdWString() })[0].cells[0].content.toDouble(),
            before * factor * 2);
    }

    void shouldRefuseUnitsOfAnotherQuantity_data()
    {
        QTest::addColumn<int>("quantity");
        QTest::addColumn<QString>("unit");
        QTest::newRow("a force unit for a length") << int(UnitsSubDataModel::Length) << "kN";
        QTest::newRow("no unit at all") << int(UnitsSubDataModel::Force) << "";
        QTest::newRow("a quantity that does not exist") << 7 << "m";
    }

    void shouldRefuseUnitsOfAnotherQuantity()
    {
        QFETCH(int, quantity);
        QFETCH(QString, unit);
        const QString before = m_data->units()->summary();
        QSignalSpy changed(m_data->units(), &UnitsSubDataModel::unitsChanged);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setUnit"));
        QVERIFY(!m_data->units()->setUnit(quantity, unit));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(m_data->units()->summary(), before);
    }

    void shouldKeepTheChosenUnitsForTheNextSession()
    {
        QVERIFY(m_data->units()->setUnit(UnitsSubDataModel::Moment, QStringLiteral("Nm")));
        // A new host on the same settings file.
        const DisplayUnits again({}, m_catalog->Get<UI::DataModel::Settings>());
        QCOMPARE(again.GetUnit(DisplayUnits::Quantity::Moment), QStringLiteral("Nm"));
    }

    void shouldShowThePointerOfItsOwnViewInTheChosenUnit()
    {
        auto bus = m_catalog->Get<EventBus>();
        CoordinatesSubModel* coordinates = m_data->coordinates();
        m_data->setViewportId(3);
        QSignalSpy changed(coordinates, &CoordinatesSubModel::coordinatesChanged);

        bus->Post(Graphic::PointerPositionChangedEvent { 4, true, { 1.0, 2.0, 3.0 } });
        QCOMPARE(changed.count(), 0);
        QVERIFY(!coordinates->valid());

        bus->Post(Graphic::PointerPositionChangedEvent { 3, true, { 1.25, -2.5, 0.0 } });
        QVERIFY(coordinates->valid());
        QCOMPARE(coordinates->xText(), QStringLiteral("1.25"));
        QCOMPARE(coordinates->yText(), QStringLiteral("-2.5"));

        QVERIFY(m_data->units()->setUnit(UnitsSubDataModel::Length, QStringLiteral("mm")));
        QCOMPARE(coordinates->xText(), QStringLiteral("1250"));
        QCOMPARE(coordinates->unit(), QStringLiteral("mm"));

        bus->Post(Graphic::PointerPositionChangedEvent { 3, false, {} });
        QVERIFY(!coordinates->valid());
        QCOMPARE(coordinates->xText(), QString());
    }

    void shouldShowTheScaleAsADrawingScaleAndPerPixel()
    {
        auto bus = m_catalog->Get<EventBus>();
        m_data->setViewportId(3);
        QSignalSpy changed(m_data->scale(), &ScaleSubDataModel::scaleChanged);
        // 100 screen pixels of 96 dpi are 26.46 mm; showing 2.646 m there is 1:100.
        bus->Post(Graphic::ViewScaleChangedEvent { 3, 100.0 * ScaleSubDataModel::c_metresPerScreenPixel });
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_data->scale()->scaleText(), QStringLiteral("1:100"));
        QVERIFY(m_data->units()->setUnit(UnitsSubDataModel::Length, QStringLiteral("mm")));
        QCOMPARE(m_data->scale()->pixelText(), QStringLiteral("1 px = 26.4583 mm"));
    }

    void shouldToggleSnapsForEveryBar()
    {
        // Given two bars, as a host with two windows has
        StatusBarDataModel other;
        QSignalSpy otherChanged(other.snapping()->snaps(), &QAbstractItemModel::dataChanged);
        SnappingSubDataModel* snapping = m_data->snapping();
        const bool before = snapping->isEnabled(QStringLiteral("midpoints"));
        const int countBefore = snapping->enabledCount();

        // When one of them toggles a snap
        QVERIFY(snapping->toggle(QStringLiteral("midpoints")));

        // Then both show it, and the views' setting has it
        QCOMPARE(snapping->isEnabled(QStringLiteral("midpoints")), !before);
        QCOMPARE(other.snapping()->isEnabled(QStringLiteral("midpoints")), !before);
        QCOMPARE(otherChanged.count(), 1);
        QCOMPARE(snapping->enabledCount(), countBefore + (before ? -1 : 1));
        QCOMPARE(m_catalog->Get<UI::DataModel::Settings>()
                     ->Value(UI::DataModel::Settings::c_snapToMidpoints)
                     .toBool(),
                 !before);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no snap"));
        QVERIFY(!snapping->toggle(QStringLiteral("tangent")));
    }

    void shouldOfferEverySnapWithItsOwnShortcut()
    {
        QAbstractItemModel* snaps = m_data->snapping()->snaps();
        QSet<QString> shortcuts;
        for (int row = 0; row < snaps->rowCount(); ++row) {
            const QString shortcut = snaps->index(row, 0).data(SnapListModel::ShortcutRole).toString();
            QVERIFY(!QKeySequence(shortcut).isEmpty());
            shortcuts.insert(shortcut);
        }
        QCOMPARE(shortcuts.size(), snaps->rowCount());
    }

    void shouldListWorkPlanesAndLoadCasesAndSetTheActiveOnes()
    {
        MasterEntitySubDataModel* entities = m_data->masterEntity();
        QCOMPARE(entities->workPlanes(), (QStringList { "Level 0 m", "Level 4.5 m" }));
        QVERIFY(!entities->loadCases().isEmpty());
        QCOMPARE(entities->currentWorkPlane(), 0);
        QSignalSpy changed(entities, &MasterEntitySubDataModel::entitiesChanged);

        entities->setCurrentWorkPlane(1);
        QCOMPARE(m_catalog->Get<Kernel::Model::ActiveEntities>()->GetWorkPlaneLevel(), c_height);
        QCOMPARE(entities->currentWorkPlane(), 1);
        QCOMPARE(changed.count(), 1);

        const int last = int(entities->loadCases().size()) - 1;
        entities->setCurrentLoadCase(last);
        QCOMPARE(entities->currentLoadCase(), last);

        QVERIFY(m_data->units()->setUnit(UnitsSubDataModel::Length, QStringLiteral("mm")));
        QCOMPARE(entities->workPlanes().last(), QStringLiteral("Level 4500 mm"));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no work plane"));
        entities->setCurrentWorkPlane(5);
        QCOMPARE(entities->currentWorkPlane(), 1);
    }

    void shouldShowTheAnalysisWhileItRuns()
    {
        auto analysis = m_catalog->Get<Kernel::Analysis::AnalysisService>();
        QSignalSpy progress(m_data.get(), &StatusBarDataModel::progressChanged);
        QVERIFY(!m_data->busy());
        QVERIFY(analysis->start());
        QVERIFY(m_data->busy());
        QTRY_VERIFY(!m_data->busy());
        QVERIFY(progress.count() >= 2);
        QCOMPARE(m_data->progress(), 0.0);
        QCOMPARE(m_data->progressText(), QString());
    }

private:
    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<StatusBarDataModel> m_data;
    std::unique_ptr<QAbstractItemModelTester> m_snapsTester;
};

QTEST_MAIN(tst_StatusBar)
#include "tst_statusbar.moc"
