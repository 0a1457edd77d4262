#include "TestHost.h"
#include "analysis/AnalysisService.h"
#include "analysis/DesignService.h"
#include "commands/ICommandRepository.h"
#include "model/ModelGenerator.h"
#include "model/ModelRecords.h"
#include "properties/StructuralModel.h"
#include "status/ProcessToolbar.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo;
using namespace Orvo::UI::UIComponents;
using Kernel::Framework::ServiceCatalog;
using Kernel::Framework::StructuralModel;
using State = WorkflowStepsModel::StepState;

Q_DECLARE_METATYPE(WorkflowStepsModel::StepState)

namespace {

enum Step
{
    ModelStep,
    LoadsStep,
    AnalysisStep,
    ResultsStep,
    DesignStep,
};

// The states of the steps in their order, as one text: "Done Done NotStarted ...".
QString Describe(const WorkflowStepsModel& steps)
{
    const QMetaEnum names = QMetaEnum::fromType<WorkflowStepsModel::StepState>();
    QStringList states;
    for (int row = 0; row < steps.rowCount(); ++row)
        states << QString::fromLatin1(
            names.valueToKey(steps.index(row).data(WorkflowStepsModel::StateRole).toInt()));
    return states.join(QLatin1Char(' '));
}

} // namespace

class tst_ProcessToolbar : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_catalog = m_host->StartServices();
        Model()->Replace([](Kernel::Model::Structure& structure) {
            Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
        });
        m_toolbar = std::make_unique<ProcessToolbar>();
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_toolbar->steps(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_tester.reset();
        m_toolbar.reset();
        m_catalog.reset();
        m_host.reset();
    }

    void shouldFollowTheModelAndTheAnalysis_data()
    {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a new model with loads")
            << QStringList {} << "Done Done NotStarted NotStarted NotStarted";
        QTest::newRow("after an analysis") << QStringList { "analyse" } << "Done Done Done Done NotStarted";
        QTest::newRow("an edit after the analysis")
            << QStringList { "analyse", "edit" } << "Done Done NeedsUpdate NeedsUpdate NotStarted";
        QTest::newRow("analysed again after the edit")
            << QStringList { "analyse", "edit", "analyse" } << "Done Done Done Done NotStarted";
        QTest::newRow("after a design check")
            << QStringList { "analyse", "check" } << "Done Done Done Done Done";
        QTest::newRow("an edit after the design check")
            << QStringList { "analyse", "check", "edit" } << "Done Done NeedsUpdate NeedsUpdate NeedsUpdate";
        QTest::newRow("analysed again, the check not yet run")
            << QStringList { "analyse", "check", "edit", "analyse" } << "Done Done Done Done NeedsUpdate";
        QTest::newRow("checked again")
            << QStringList { "analyse", "check", "edit", "analyse", "check" } << "Done Done Done Done Done";
        QTest::newRow("members over their strength")
            << QStringList { "weaken", "analyse", "check" } << "Done Done Done Done Error";
        QTest::newRow("a check before any analysis does nothing")
            << QStringList { "check" } << "Done Done NotStarted NotStarted NotStarted";
        QTest::newRow("a section out of range")
            << QStringList { "break" } << "Error Done NotStarted NotStarted NotStarted";
        QTest::newRow("an empty model")
            << QStringList { "clear" } << "NotStarted NotStarted NotStarted NotStarted NotStarted";
    }

    void shouldFollowTheModelAndTheAnalysis()
    {
        QFETCH(QStringList, actions);
        QFETCH(QString, expected);
        for (const QString& action : actions)
            QVERIFY2(Do(action), qPrintable(action));
        QCOMPARE(Describe(*m_toolbar->steps()), expected);
    }

    void shouldNameEveryStateForTheDocuments()
    {
        QVERIFY(Do(QStringLiteral("analyse")));
        QVERIFY(Do(QStringLiteral("edit")));
        const QModelIndex analysis = m_toolbar->steps()->index(AnalysisStep);
        QCOMPARE(analysis.data(WorkflowStepsModel::StateNameRole).toString(), QStringLiteral("needsUpdate"));
        QCOMPARE(m_toolbar->steps()->index(ModelStep).data(WorkflowStepsModel::StateNameRole).toString(),
                 QStringLiteral("done"));
    }

    void shouldOfferTheCurrentStepsActionInTheCentre_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("model") << int(ModelStep) << "Edit model" << true;
        QTest::newRow("loads") << int(LoadsStep) << "Edit loads" << true;
        QTest::newRow("analysis") << int(AnalysisStep) << "Calculate" << true;
        QTest::newRow("results before an analysis") << int(ResultsStep) << "Show results" << false;
        QTest::newRow("design before an analysis") << int(DesignStep) << "Check design" << false;
    }

    void shouldOfferTheCurrentStepsActionInTheCentre()
    {
        QFETCH(int, step);
        QFETCH(QString, text);
        QFETCH(bool, enabled);
        QSignalSpy current(m_toolbar.get(), &ProcessToolbar::currentStepChanged);
        m_toolbar->setCurrentStep(step);
        QCOMPARE(current.count(), step == 0 ? 0 : 1);
        QCOMPARE(m_toolbar->centerButton()->text(), text);
        QCOMPARE(m_toolbar->centerButton()->enabled(), enabled);
        QCOMPARE(m_toolbar->steps()->index(step).data(WorkflowStepsModel::CurrentRole).toBool(), true);
    }

    void shouldCalculateFromTheCentreButton()
    {
        m_toolbar->setCurrentStep(AnalysisStep);
        auto analysis = m_catalog->Get<Kernel::Analysis::AnalysisService>();
        QSignalSpy finished(analysis.get(), &Kernel::Analysis::AnalysisService::finished);

        m_toolbar->centerButton()->trigger();

        QVERIFY(m_toolbar->centerButton()->running());
        QVERIFY(!m_toolbar->centerButton()->enabled()); // not twice at once
        QCOMPARE(m_toolbar->steps()->State(AnalysisStep), State::Running);
        QVERIFY(finished.wait(10000));
        QCOMPARE(m_toolbar->steps()->State(AnalysisStep), State::Done);
        QVERIFY(!m_toolbar->centerButton()->running());

        // Results can now be shown.
        m_toolbar->setCurrentStep(ResultsStep);
        QSignalSpy shown(m_toolbar.get(), &ProcessToolbar::resultsRequested);
        m_toolbar->centerButton()->trigger();
        QCOMPARE(shown.count(), 1);

        // And the design checked.
        m_toolbar->setCurrentStep(DesignStep);
        QVERIFY(m_toolbar->centerButton()->enabled());
        m_toolbar->centerButton()->trigger();
        auto design = m_catalog->Get<Kernel::Analysis::DesignService>();
        QVERIFY(design->hasOutcome());
        QVERIFY(design->passes());
        QVERIFY(design->maxUtilisation() > 0.0);
        QVERIFY2(design->statusText().contains(QStringLiteral("member")), qPrintable(design->statusText()));
    }

    void shouldNotCalculateAModelWithErrors()
    {
        QVERIFY(Do(QStringLiteral("break")));
        m_toolbar->setCurrentStep(AnalysisStep);
        QVERIFY(!m_toolbar->centerButton()->enabled());
        QSignalSpy running(m_catalog->Get<Kernel::Analysis::AnalysisService>().get(),
                           &Kernel::Analysis::AnalysisService::runningChanged);
        m_toolbar->centerButton()->trigger(); // its shortcut, while the button is greyed out
        QCOMPARE(running.count(), 0);
    }

    void shouldAskForTheTablesOfTheModelAndTheLoads()
    {
        QSignalSpy tables(m_toolbar.get(), &ProcessToolbar::tablesRequested);
        m_toolbar->centerButton()->trigger();
        m_toolbar->setCurrentStep(LoadsStep);
        m_toolbar->centerButton()->trigger();
        QCOMPARE(tables.count(), 2);
        QCOMPARE(tables.at(0).at(0).toString(), QStringLiteral("model"));
        QCOMPARE(tables.at(1).at(0).toString(), QStringLiteral("loads"));
    }

    void shouldDescribeAStepInItsTooltip()
    {
        QVERIFY(Do(QStringLiteral("analyse")));
        QVERIFY(Do(QStringLiteral("edit")));
        m_toolbar->showTooltip(AnalysisStep);
        QCOMPARE(m_toolbar->tooltip()->title(), QStringLiteral("Analysis"));
        QVERIFY(!m_toolbar->tooltip()->description().isEmpty());
        QCOMPARE(m_toolbar->tooltip()->shortcut(), QStringLiteral("Ctrl+3"));
        QCOMPARE(m_toolbar->tooltip()->status(), QStringLiteral("Needs an update: the model changed since"));

        m_toolbar->setCurrentStep(AnalysisStep);
        m_toolbar->showTooltip(-1);
        QCOMPARE(m_toolbar->tooltip()->title(), QStringLiteral("Calculate"));
        QCOMPARE(m_toolbar->tooltip()->shortcut(), QStringLiteral("F5"));
    }

    void shouldKeepTheCurrentStepForTheNextSession()
    {
        m_toolbar->setCurrentStep(ResultsStep);
        const QString stored = m_toolbar->saveConfiguration();
        ProcessToolbar again;
        again.loadConfiguration(stored);
        QCOMPARE(again.currentStep(), int(ResultsStep));

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("names no step"));
        again.loadConfiguration(QStringLiteral("{\"currentStep\":\"painting\"}"));
        QCOMPARE(again.currentStep(), int(ResultsStep));
    }

    void shouldShareNoShortcutWithAShippedCommand()
    {
        // Given the application's shipped commands
        QFile shipped(QCoreApplication::applicationDirPath() + QStringLiteral("/Configuration/Commands.xml"));
        QVERIFY(shipped.open(QIODevice::ReadOnly));
        m_host->WriteFile(QStringLiteral("Configuration/Commands.xml"), shipped.readAll());
        m_toolbar.reset();
        m_catalog.reset();
        ServiceCatalog::SetGlobal(nullptr);
        m_catalog = m_host->StartServices();
        const auto repository = m_catalog->Get<Kernel::Framework::ICommandRepository>();
        QVERIFY(!repository->GetShortcuts().empty());

        // Then none takes a key of the toolbar: both are application-wide, and Qt runs neither
        // of two shortcuts on one key
        QStringList shortcuts { CenterButtonData::c_shortcut };
        for (const auto& step : WorkflowStepsModel::Steps())
            shortcuts << step.shortcut;
        for (const QString& shortcut : shortcuts) {
            const auto owners = repository->FindCommandsWithShortcut(shortcut.toStdWString());
            QVERIFY2(owners.empty(),
                     qPrintable(shortcut + QStringLiteral(" is taken by ")
                                + QString::fromStdWString(owners.empty() ? std::wstring() : owners.front())));
        }
    }

private:
    std::shared_ptr<StructuralModel> Model() const { return m_catalog->Get<StructuralModel>(); }

    bool Do(const QString& action)
    {
        if (action == QLatin1String("analyse")) {
            auto analysis = m_catalog->Get<Kernel::Analysis::AnalysisService>();
            QSignalSpy finished(analysis.get(), &Kernel::Analysis::AnalysisService::finished);
            return analysis->start() && finished.wait(10000) && finished.at(0).at(0).toBool();
        }
        if (action == QLatin1String("edit")) {
            const auto node = Kernel::Model::MakeObjectId(Kernel::Model::ObjectKind::Node,
                                                          Model()->Structure().Nodes().At(1).number);
            return Model()->SetValue({ node }, QStringLiteral("node.x"), 0.25).changed > 0;
        }
        if (action == QLatin1String("break")) {
            Model()->Replace([](Kernel::Model::Structure& structure) {
                Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
                // Taller than any section the model takes.
                structure.Table<Kernel::Model::CrossSection>().At(0).height = 9000.0;
            });
            return true;
        }
        if (action == QLatin1String("check")) {
            // The way the user runs it: the design step's centre button (or its shortcut).
            m_toolbar->setCurrentStep(DesignStep);
            m_toolbar->centerButton()->trigger();
            return true;
        }
        if (action == QLatin1String("weaken")) {
            Model()->Replace([](Kernel::Model::Structure& structure) {
                Kernel::Model::ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
                // A material of no strength worth the name: every loaded member fails.
                structure.Table<Kernel::Model::Material>().At(0).strength = 0.01;
            });
            return true;
        }
        if (action == QLatin1String("clear")) {
            Model()->Replace([](Kernel::Model::Structure&) {});
            return true;
        }
        return false;
    }

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;
    std::unique_ptr<ProcessToolbar> m_toolbar;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(tst_ProcessToolbar)
#include "tst_processtoolbar.moc"
