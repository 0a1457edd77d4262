#include "TestHost.h"
#include "datamodel/Settings.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"
#include "graphic/RenderTarget.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "status/ViewBar.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo;
using namespace Orvo::UI::UIComponents;

namespace {

// An engine view without a window.
class HeadlessView : public Graphic::InteractiveViewport
{
public:
    using InteractiveViewport::InteractiveViewport;
    void RedrawWindowRequest() override { }
    void PresentFrame() override { }
    void ScheduleRedraw(int) override { }
};

// The buttons shown in the bar, in order, and those in the menu: "isometric top | fit".
QString Describe(const ViewBar& bar)
{
    QStringList inBar;
    for (int row = 0; row < bar.buttons()->rowCount(); ++row) {
        const QModelIndex index = bar.buttons()->index(row);
        if (index.data(ViewBarButtonsModel::InBarRole).toBool())
            inBar << index.data(ViewBarButtonsModel::ButtonIdRole).toString();
    }
    QStringList menu;
    for (const QVariant& item : bar.moreOptions()->items())
        menu << item.toMap().value(QStringLiteral("buttonId")).toString();
    return inBar.join(QLatin1Char(' ')) + QStringLiteral(" | ") + menu.join(QLatin1Char(' '));
}

} // namespace

class tst_ViewBar : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        auto catalog = m_host->StartServices();
        catalog->Get<UI::DataModel::Settings>()->SetValue(UI::DataModel::Settings::c_rendererType,
                                                          int(Graphic::RendererType::Software));
        catalog->Get<Kernel::Framework::StructuralModel>()->Replace([](Kernel::Model::Structure& structure) {
            Kernel::Model::ModelGenerator::PortalFrame(structure, Kernel::Model::PortalFrameOptions());
        });
        m_view = std::make_unique<HeadlessView>(catalog->Get<Graphic::GraphicsService>());
        QVERIFY(m_view->Initialize(0, true));
        m_view->Resize(QSize(400, 300));
        m_bar = std::make_unique<ViewBar>();
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_bar->buttons(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_bar->setButtonWidth(100);
        m_bar->setMoreButtonWidth(40);
    }

    void cleanup()
    {
        m_tester.reset();
        m_bar.reset();
        m_view->Invalidate();
        m_view.reset();
        m_host.reset();
    }

    void shouldMoveWhatDoesNotFitToTheMenu_data()
    {
        QTest::addColumn<qreal>("width");
        QTest::addColumn<QStringList>("pinned");
        QTest::addColumn<QString>("expected");
        const QString all = "isometric top front side fit solids loads supports deformed moments";
        QTest::newRow("wide enough for all") << 1000.0 << QStringList {} << all + " | ";
        QTest::newRow("just wide enough") << 1000.0 << QStringList { "loads" } << all + " | ";
        QTest::newRow("three and the menu button")
            << 340.0 << QStringList {}
            << "isometric top front | side fit solids loads supports deformed moments";
        QTest::newRow("pinned buttons stay")
            << 340.0 << QStringList { "loads", "moments" }
            << "isometric loads moments | top front side fit solids supports deformed";
        QTest::newRow("more pinned than fit: the first of them")
            << 240.0 << QStringList { "moments", "loads", "fit" }
            << "fit loads | isometric top front side solids supports deformed moments";
        QTest::newRow("too narrow for any") << 90.0 << QStringList {} << " | " + all;
    }

    void shouldMoveWhatDoesNotFitToTheMenu()
    {
        QFETCH(qreal, width);
        QFETCH(QStringList, pinned);
        QFETCH(QString, expected);
        m_bar->userConfiguration()->setPinnedButtons(pinned);
        QSignalSpy menu(m_bar->moreOptions(), &MoreOptionsMenuModel::itemsChanged);
        m_bar->setAvailableWidth(width);
        QCOMPARE(Describe(*m_bar), expected);
        // Narrowing and widening again gives the same bar.
        m_bar->setAvailableWidth(50);
        m_bar->setAvailableWidth(width);
        QCOMPARE(Describe(*m_bar), expected);
    }

    void shouldActOnTheViewFromTheBarAndTheMenu()
    {
        m_bar->setViewportId(m_view->GetRenderTarget()->GetId());
        const bool loadsBefore = m_view->GetDisplayOptions().loads;
        QVERIFY(m_bar->activate(QStringLiteral("loads")));
        QCOMPARE(m_view->GetDisplayOptions().loads, !loadsBefore);
        const QModelIndex loads = m_bar->buttons()->index(m_bar->buttons()->FindRow(QStringLiteral("loads")));
        QCOMPARE(loads.data(ViewBarButtonsModel::CheckedRole).toBool(), !loadsBefore);
        // Asked for the state it has, a toggle stays as it is.
        QVERIFY(m_bar->setChecked(QStringLiteral("loads"), !loadsBefore));
        QCOMPARE(m_view->GetDisplayOptions().loads, !loadsBefore);

        // From the menu of a narrow bar.
        m_bar->setAvailableWidth(150);
        const bool solidsBefore = m_view->GetDisplayOptions().extrudedSections;
        m_bar->moreOptions()->trigger(QStringLiteral("solids"));
        QCOMPARE(m_view->GetDisplayOptions().extrudedSections, !solidsBefore);
        bool checkedInMenu = false;
        for (const QVariant& item : m_bar->moreOptions()->items()) {
            if (item.toMap().value(QStringLiteral("buttonId")) == QLatin1String("solids"))
                checkedInMenu = item.toMap().value(QStringLiteral("checked")).toBool();
        }
        QCOMPARE(checkedInMenu, !solidsBefore);
    }

    void shouldOfferResultsOnlyWithResults()
    {
        m_bar->setViewportId(m_view->GetRenderTarget()->GetId());
        const QModelIndex deformed
            = m_bar->buttons()->index(m_bar->buttons()->FindRow(QStringLiteral("deformed")));
        QVERIFY(!deformed.data(ViewBarButtonsModel::EnabledRole).toBool());
        QVERIFY(!m_bar->activate(QStringLiteral("deformed")));
        QVERIFY(!m_bar->setChecked(QStringLiteral("deformed"), true));
        QVERIFY(!m_view->GetDisplayOptions().deformedShape);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no button"));
        QVERIFY(!m_bar->activate(QStringLiteral("rainbow")));
    }

    void shouldKeepPinnedButtonsForTheNextSession()
    {
        m_bar->setPinned(QStringLiteral("moments"), true);
        m_bar->setPinned(QStringLiteral("top"), true);
        m_bar->setPinned(QStringLiteral("top"), false);
        const QString stored = m_bar->saveConfiguration();
        ViewBar again;
        again.loadConfiguration(stored);
        QCOMPARE(again.userConfiguration()->pinnedButtons(), QStringList { "moments" });

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("not one"));
        again.loadConfiguration(QStringLiteral("[1, 2"));
        QCOMPARE(again.userConfiguration()->pinnedButtons(), QStringList { "moments" });
    }

private:
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<HeadlessView> m_view;
    std::unique_ptr<ViewBar> m_bar;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(tst_ViewBar)
#include "tst_viewbar.moc"
