#include "TestHost.h"
#include "commands/IUICommandProcessor.h"
#include "framework/XMLHandler.h"
#include "tutorial/TutorialToolTip.h"
#include "tutorial/TutorialToolTipData.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;

namespace {

const QByteArray c_steps = R"(<tutorial>
  <step id="menus" target="menuBar" title="UI_TUTORIAL_MENUS_TITLE" text="UI_TUTORIAL_MENUS_TEXT"/>
  <step id="view" target="modelView" title="UI_TUTORIAL_VIEW_TITLE" text="UI_TUTORIAL_VIEW_TEXT"/>
  <step id="units" target="unitsButton" title="UI_TUTORIAL_UNITS_TITLE" text="UI_TUTORIAL_UNITS_TEXT"/>
</tutorial>)";

const QByteArray c_commands = R"(<commands>
  <command uuid="3e0f5b9a-7c41-4d2e-9f86-1b2a4c6d8e07" name="UI_COMMAND_RESTART_TOUR"/>
</commands>)";

// The tour's state as one text: the step shown (or "-") and whether the tour is done.
QString Describe(const TutorialToolTipData& tour)
{
    return QStringLiteral("%1%2").arg(tour.running() ? tour.targetName() : QStringLiteral("-"),
                                      tour.done() ? QStringLiteral(" done") : QString());
}

} // namespace

class tst_TutorialToolTip : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    // A window with the items the steps point at (those named), laid out in a row.
    std::unique_ptr<QQuickWindow> Window(const QStringList& names) const
    {
        auto window = std::make_unique<QQuickWindow>();
        window->resize(800, 600);
        qreal x = 10;
        for (const QString& name : names) {
            auto* item = new QQuickItem(window->contentItem());
            item->setObjectName(name);
            item->setPosition({ x, 10 });
            item->setSize({ 100, 30 });
            x += 120;
        }
        return window;
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile("Configuration/Tutorial.xml", c_steps);
        m_host->WriteFile("Configuration/Commands.xml", c_commands);
        m_catalog = m_host->StartServices();
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldReadTheStepsOfTheShippedFile()
    {
        TutorialToolTipData tour;
        QCOMPARE(tour.count(), 3);
        QCOMPARE(tour.Steps()[1].target, "modelView");
        QVERIFY(!tour.running());
        QVERIFY_THROWS_EXCEPTION(
            Orvo::Kernel::Framework::XmlAttributeError,
            TutorialToolTipData::ReadStepsFromString(L"<tutorial><step id=\"a\"/></tutorial>"));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                                 TutorialToolTipData::ReadStepsFromString(L"<menus/>"));
    }

    void shouldStepWithinTheTour_data()
    {
        QTest::addColumn<QString>("moves");
        QTest::addColumn<QString>("expected");

        QTest::newRow("started") << ""
                                 << "menuBar";
        QTest::newRow("back on the first") << "<<"
                                           << "menuBar";
        QTest::newRow("next") << ">"
                              << "modelView";
        QTest::newRow("next and back") << "><"
                                       << "menuBar";
        QTest::newRow("to the last") << ">>"
                                     << "unitsButton";
        QTest::newRow("past the last") << ">>>"
                                       << "- done";
        QTest::newRow("next once finished") << ">>>>"
                                            << "- done";
        QTest::newRow("skipped") << ">s"
                                 << "- done";
        QTest::newRow("paused") << ">p"
                                << "-";
        QTest::newRow("paused, then skipped") << ">ps"
                                              << "- done";
    }

    void shouldStepWithinTheTour()
    {
        QFETCH(QString, moves);
        QFETCH(QString, expected);
        TutorialToolTipData tour;
        QVERIFY(tour.start());
        for (QChar move : moves) {
            if (move == QLatin1Char('>'))
                tour.next();
            else if (move == QLatin1Char('<'))
                tour.back();
            else if (move == QLatin1Char('s'))
                tour.skip();
            else if (move == QLatin1Char('p'))
                tour.pause();
        }
        QCOMPARE(Describe(tour), expected);
        QCOMPARE(tour.isFirst(), expected == QLatin1String("menuBar"));
        QCOMPARE(tour.isLast(), expected == QLatin1String("unitsButton"));
    }

    void shouldRememberTheTourAcrossSessions_data()
    {
        QTest::addColumn<QString>("firstSession");
        QTest::addColumn<QString>("secondSession");
        QTest::newRow("finished") << "finish"
                                  << "-";
        QTest::newRow("skipped") << "skip"
                                 << "-";
        QTest::newRow("left on the second step") << "leave"
                                                 << "modelView";
        QTest::newRow("not started") << ""
                                     << "menuBar";
    }

    void shouldRememberTheTourAcrossSessions()
    {
        QFETCH(QString, firstSession);
        QFETCH(QString, secondSession);
        // Given a session in which the user went through the tour or left it
        {
            TutorialToolTipData tour;
            if (!firstSession.isEmpty()) {
                tour.start();
                tour.MarkSeen();
                tour.next();
            }
            if (firstSession == QLatin1String("finish")) {
                tour.next();
                tour.next();
            } else if (firstSession == QLatin1String("skip")) {
                tour.skip();
            }
        }
        // When the application starts again (its settings read back from their file)
        m_catalog.reset();
        m_catalog = m_host->StartServices();
        TutorialToolTipData tour;
        tour.start();

        // Then the tour goes on where the user left it, or not at all
        QCOMPARE(Describe(tour).section(QLatin1Char(' '), 0, 0), secondSession);
    }

    void shouldRestartFromTheHelpMenu()
    {
        // Given a finished tour, when the user restarts it from the Help menu
        auto window = Window({ "menuBar", "modelView", "unitsButton" });
        TutorialToolTip tip(window->contentItem());
        tip.tour()->skip();
        QVERIFY(tip.tour()->done());
        QVERIFY(!tip.tour()->start());
        QVERIFY(m_catalog->Get<IUICommandProcessor>()->ExecuteCommand(TutorialToolTip::c_restartTourCommand,
                                                                      L"", L"Test"));
        // Then it shows its first step again
        QCOMPARE(Describe(*tip.tour()), "menuBar");
    }

    void shouldPassOverAStepWhoseItemIsMissing_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("moves");
        QTest::addColumn<int>("warnings");
        QTest::addColumn<QString>("expected");
        QTest::newRow("going forward")
            << QStringList { "menuBar", "unitsButton" } << ">" << 1 << "unitsButton";
        QTest::newRow("going back") << QStringList { "menuBar", "unitsButton" } << "><" << 2 << "menuBar";
        QTest::newRow("the first missing")
            << QStringList { "modelView", "unitsButton" } << "" << 1 << "modelView";
        QTest::newRow("the last missing") << QStringList { "menuBar", "modelView" } << ">>" << 1 << "- done";
        QTest::newRow("all missing") << QStringList() << "" << 3 << "-";
    }

    void shouldPassOverAStepWhoseItemIsMissing()
    {
        QFETCH(QStringList, items);
        QFETCH(QString, moves);
        QFETCH(int, warnings);
        QFETCH(QString, expected);
        auto window = Window(items);
        TutorialToolTip tip(window->contentItem());
        tip.setSize(window->size());
        // Each missing item is reported as the tour passes over it
        for (int i = 0; i < warnings; ++i)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("points at \"\\w+\", which is not in the window"));
        tip.tour()->start();
        for (QChar move : moves)
            move == QLatin1Char('>') ? tip.tour()->next() : tip.tour()->back();
        QCOMPARE(Describe(*tip.tour()), expected);
        // A tour none of whose items could be shown starts again another time
        if (items.isEmpty())
            QVERIFY(!tip.tour()->done());
    }

    void shouldPlaceTheTipBesideTheItemWhereThereIsRoom_data()
    {
        QTest::addColumn<QRectF>("target");
        QTest::addColumn<int>("placement");
        QTest::newRow("room on the right") << QRectF(10, 200, 100, 30) << int(TutorialToolTip::Right);
        QTest::newRow("at the right edge") << QRectF(690, 200, 100, 30) << int(TutorialToolTip::Left);
        QTest::newRow("as wide as the window, at the top")
            << QRectF(0, 0, 800, 30) << int(TutorialToolTip::Below);
        QTest::newRow("as wide as the window, at the bottom")
            << QRectF(0, 560, 800, 40) << int(TutorialToolTip::Above);
        QTest::newRow("the whole window") << QRectF(0, 0, 800, 600) << int(TutorialToolTip::Below);
    }

    void shouldPlaceTheTipBesideTheItemWhereThereIsRoom()
    {
        QFETCH(QRectF, target);
        QFETCH(int, placement);
        const QRectF area(0, 0, 800, 600);
        const QSizeF tip(320, 150);
        const auto chosen = TutorialToolTip::ChoosePlacement(area, target, tip);
        QCOMPARE(int(chosen), placement);
        const QRectF rect = TutorialToolTip::PlaceTip(area, target, tip, chosen);
        // Always whole within the window, and never over the item when there was room beside it
        QVERIFY(area.contains(rect));
        if (target != area)
            QVERIFY(!rect.intersects(target));
    }

    void shouldPauseWhenTheItemLeaves()
    {
        // Given a tip on the second step
        auto window = Window({ "menuBar", "modelView", "unitsButton" });
        TutorialToolTip tip(window->contentItem());
        tip.setSize(window->size());
        tip.setTipSize({ 200, 100 });
        QSignalSpy layout(&tip, &TutorialToolTip::layoutChanged);
        tip.tour()->start();
        tip.tour()->next();
        QCOMPARE(tip.targetRect(), QRectF(130, 10, 100, 30));
        QCOMPARE(tip.placement(), TutorialToolTip::Right);
        QVERIFY(layout.count() > 0);

        // When its item is hidden (the user went to another page), the tour pauses, not ends
        QQuickItem* view = tip.FindTarget("modelView");
        QVERIFY(view);
        view->setVisible(false);
        QVERIFY(!tip.tour()->running());
        QVERIFY(!tip.tour()->done());

        // and back there, it resumes at the first step not seen
        view->setVisible(true);
        tip.tour()->start();
        QCOMPARE(Describe(*tip.tour()), "unitsButton");
    }
};

QTEST_MAIN(tst_TutorialToolTip)
#include "tst_tutorialtooltip.moc"
