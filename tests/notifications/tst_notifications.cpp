#include "TestHost.h"
#include "analysis/AnalysisEvents.h"
#include "document/ModelDocumentEvents.h"
#include "framework/EventBus.h"
#include "model/ModelGenerator.h"
#include "model/ObjectIds.h"
#include "notifications/Notifications.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;
using Model::MakeObjectId;
using Model::ObjectKind;

class tst_Notifications : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<StructuralModel> StructureModel() const { return m_catalog->Get<StructuralModel>(); }
    EventBus& Bus() const { return *m_catalog->Get<EventBus>(); }

    // What the centre shows of its newest message: severity, title, text and action keys.
    static QString DescribeNewest(const Notifications& centre)
    {
        const QModelIndex newest = centre.notificationsModel()->index(0);
        QStringList actions;
        for (const QVariant& action : newest.data(NotificationsModel::ActionsRole).toList())
            actions << action.toMap()["key"].toString();
        return QStringLiteral("%1|%2|%3|%4")
            .arg(QMetaEnum::fromType<NotificationsModel::Severity>().valueToKey(
                newest.data(NotificationsModel::SeverityRole).toInt()))
            .arg(newest.data(NotificationsModel::TitleRole).toString(),
                 newest.data(NotificationsModel::MessageRole).toString(), actions.join(QLatin1Char('+')));
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_catalog = m_host->StartServices();
        StructureModel()->Replace([](Model::Structure& structure) {
            Model::ModelGenerator::PortalFrame(structure, { 1, 6.0, 4.0 });
        });
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldTurnAnalysisEndsIntoMessages_data()
    {
        QTest::addColumn<bool>("succeeded");
        QTest::addColumn<bool>("cancelled");
        QTest::addColumn<int>("object");
        QTest::addColumn<QString>("expected");

        QTest::newRow("finished") << true << false << 0
                                  << "Success|Analysis finished|how it went|showResults";
        QTest::newRow("failed on an object") << false << false << MakeObjectId(ObjectKind::Node, 2)
                                             << "Error|Analysis failed|how it went|selectObject";
        QTest::newRow("failed, no object") << false << false << 0 << "Error|Analysis failed|how it went|";
        QTest::newRow("stopped by the user") << false << true << 0 << "";
    }

    void shouldTurnAnalysisEndsIntoMessages()
    {
        QFETCH(bool, succeeded);
        QFETCH(bool, cancelled);
        QFETCH(int, object);
        QFETCH(QString, expected);
        Notifications centre;
        QAbstractItemModelTester tester(centre.notificationsModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

        Bus().Post(Analysis::AnalysisFinishedEvent { succeeded, cancelled, "how it went", 12, 0.5, object });

        QCOMPARE(centre.notificationsModel()->rowCount(), expected.isEmpty() ? 0 : 1);
        if (!expected.isEmpty()) {
            QCOMPARE(DescribeNewest(centre), expected);
            QCOMPARE(centre.toasts()->rowCount(), 1);
            QCOMPARE(centre.notificationsModel()->unreadCount(), 1);
        }
    }

    void shouldTellWhatBecameOfAModelFile_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("expected");
        QTest::newRow("saved") << 0 << "Success|Saved Frame.qcm|/work/Frame.qcm|";
        QTest::newRow("opened") << 1
                                << "Information|Opened Frame.qcm|Undo brings back the model you had before.|";
        QTest::newRow("not opened") << 2
                                    << "Error|Could not open Frame.qcm|The file is not a structural model|";
        QTest::newRow("not saved") << 3 << "Error|Could not save Frame.qcm|Cannot write|";
    }

    void shouldTellWhatBecameOfAModelFile()
    {
        QFETCH(int, outcome);
        QFETCH(QString, expected);
        Notifications centre;
        const QString path = QStringLiteral("/work/Frame.qcm");
        if (outcome == 0)
            Bus().Post(ModelFileSavedEvent { path });
        else if (outcome == 1)
            Bus().Post(ModelFileOpenedEvent { path });
        else if (outcome == 2)
            Bus().Post(ModelFileFailedEvent { ModelFileOperation::Open, path,
                                              "The file is not a structural model" });
        else
            Bus().Post(ModelFileFailedEvent { ModelFileOperation::Save, path, "Cannot write" });
        QCOMPARE(centre.notificationsModel()->rowCount(), 1);
        QCOMPARE(DescribeNewest(centre), expected);
    }

    void shouldTurnDesignChecksIntoMessages_data()
    {
        QTest::addColumn<bool>("passes");
        QTest::addColumn<int>("member");
        QTest::addColumn<QString>("expected");
        QTest::newRow("passed") << true << MakeObjectId(ObjectKind::Member, 3)
                                << "Success|Design check passed|how it went|";
        QTest::newRow("a member over its strength")
            << false << MakeObjectId(ObjectKind::Member, 3)
            << "Warning|Members over their strength|how it went|selectObject";
    }

    void shouldTurnDesignChecksIntoMessages()
    {
        QFETCH(bool, passes);
        QFETCH(int, member);
        QFETCH(QString, expected);
        Notifications centre;
        QAbstractItemModelTester tester(centre.notificationsModel(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

        Bus().Post(Analysis::DesignCheckedEvent { passes, passes ? 0.5 : 1.5, "how it went", member });

        QCOMPARE(centre.notificationsModel()->rowCount(), 1);
        QCOMPARE(DescribeNewest(centre), expected);
    }

    void shouldSelectTheObjectARefusedEditIsAbout()
    {
        // Given a centre and a user's edit the model refuses
        Notifications centre;
        QAbstractItemModelTester tester(centre.filteredNotifications(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy selected(&centre, &Notifications::objectSelected);
        const Model::ObjectId member = MakeObjectId(ObjectKind::Member, 1);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("keeps its value"));
        StructureModel()->SetValue({ member }, "member.endNode", PropertyValue(std::int32_t(99)));
        QCOMPARE(DescribeNewest(centre), "Warning|Value not accepted|There is no node 99|selectObject");
        StructureModel()->Select({});

        // When the user picks the message's action
        const int id = centre.notificationsModel()->index(0).data(NotificationsModel::IdRole).toInt();
        QVERIFY(centre.activate(id, Notifications::c_selectObjectAction));

        // Then the member is selected and the message is read
        QCOMPARE(StructureModel()->Selection(), std::vector<Model::ObjectId> { member });
        QCOMPARE(selected.count(), 1);
        QCOMPARE(centre.notificationsModel()->unreadCount(), 0);
        // An action the message does not offer does nothing
        QVERIFY(!centre.activate(id, Notifications::c_showResultsAction));
        QVERIFY(!centre.activate(id + 100, Notifications::c_selectObjectAction));
    }

    void shouldRefuseToSelectAnObjectThatIsGone()
    {
        Notifications centre;
        const Model::ObjectId gone = MakeObjectId(ObjectKind::Node, 77);
        Bus().Post(Analysis::AnalysisFinishedEvent { false, false, "Node 77 is loose", 0, 0.0, gone });
        const int id = centre.notificationsModel()->index(0).data(NotificationsModel::IdRole).toInt();

        QVERIFY(!centre.activate(id, Notifications::c_selectObjectAction));
        QVERIFY(StructureModel()->Selection().empty());
    }

    void shouldAskForResults()
    {
        Notifications centre;
        QSignalSpy requested(&centre, &Notifications::resultsRequested);
        Bus().Post(Analysis::AnalysisFinishedEvent { true, false, "done", 12, 0.5, 0 });
        const int id = centre.notificationsModel()->index(0).data(NotificationsModel::IdRole).toInt();

        QVERIFY(centre.activate(id, Notifications::c_showResultsAction));
        QCOMPARE(requested.count(), 1);
    }

    void shouldStopListeningWhenGone()
    {
        {
            Notifications centre;
            QCOMPARE(Bus().SubscriberCount<EditRejectedEvent>(), 1u);
        }
        QCOMPARE(Bus().SubscriberCount<EditRejectedEvent>(), 0u);
        QCOMPARE(Bus().SubscriberCount<Analysis::AnalysisFinishedEvent>(), 0u);
        QCOMPARE(Bus().SubscriberCount<Analysis::DesignCheckedEvent>(), 0u);
    }
};

QTEST_MAIN(tst_Notifications)
#include "tst_notifications.moc"
