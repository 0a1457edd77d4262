#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/ICommandRepository.h"
#include "commands/RecentFiles.h"
#include "document/ModelDocument.h"
#include "filedrop/FileDrop.h"
#include "model/ModelFile.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Framework;
using Orvo::UI::UIComponents::FileDrop;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="0b6f6f2e-3c8d-4f1a-9a57-6c2e41d7b5a3" name="UI_COMMAND_OPEN" group="file"/>
</commands>)";

} // namespace

class tst_FileDrop : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    StructuralModel& Model() const { return *m_catalog->Get<StructuralModel>(); }
    QUrl File(const QString& name) const { return QUrl::fromLocalFile(m_host->FilePath(name)); }
    // Files of the test's folder by name; a name with a scheme stays a URL of its own.
    QList<QUrl> Files(const QStringList& names) const
    {
        QList<QUrl> urls;
        for (const QString& name : names)
            urls << (name.contains(QLatin1Char(':')) ? QUrl(name) : File(name));
        return urls;
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile("Configuration/Commands.xml", c_commands);
        m_catalog = m_host->StartServices();
        Model().Replace([](Model::Structure& structure) {
            Model::ModelGenerator::Building(structure, Model::BuildingOptions());
        });
        Model::Structure frame;
        Model::ModelGenerator::PortalFrame(frame, { 2, 6.0, 4.0 });
        QVERIFY(!Model::ModelFile::Save(frame, m_host->FilePath("Frame.qcm")));
        m_host->WriteFile("Broken.qcm", "{ \"format\": ");
        m_host->WriteFile("Notes.txt", "not a model");
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldSayWhatADragWouldDo_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<bool>("acceptable");
        QTest::addColumn<QString>("message");

        QTest::newRow("a model") << QStringList { "Frame.qcm" } << true << "Drop to open Frame.qcm";
        QTest::newRow("a text") << QStringList { "Notes.txt" } << false
                                << "Only model files (.qcm) can be opened here";
        QTest::newRow("a model among others")
            << QStringList { "Notes.txt", "Frame.qcm" } << true << "Drop to open Frame.qcm";
        QTest::newRow("a model on the web") << QStringList { "https://example.com/Frame.qcm" } << false
                                            << "Only model files (.qcm) can be opened here";
        QTest::newRow("nothing") << QStringList() << false << "Only model files (.qcm) can be opened here";
    }

    void shouldSayWhatADragWouldDo()
    {
        QFETCH(QStringList, files);
        const QList<QUrl> urls = Files(files);
        QFETCH(bool, acceptable);
        QFETCH(QString, message);
        FileDrop drop;
        QSignalSpy changed(&drop, &FileDrop::dragChanged);
        QVERIFY(changed.isValid());

        drop.enter(urls);
        QVERIFY(drop.dragActive());
        QCOMPARE(drop.dragAcceptable(), acceptable);
        QCOMPARE(drop.message(), message);
        QCOMPARE(changed.count(), 1);
        // The same files again, as a drag moves on, say nothing new
        drop.enter(urls);
        QCOMPARE(changed.count(), 1);

        drop.leave();
        QVERIFY(!drop.dragActive());
        QVERIFY(!drop.dragAcceptable());
        QCOMPARE(changed.count(), 2);
    }

    void shouldRefuseADropItCannotOpenAndChangeNothing_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("reported");
        QTest::newRow("a text") << QStringList { "Notes.txt" }
                                << "Only model files (.qcm) can be opened here";
        QTest::newRow("a broken model") << QStringList { "Broken.qcm" } << "";
        QTest::newRow("a model that is gone") << QStringList { "Gone.qcm" } << "";
    }

    void shouldRefuseADropItCannotOpenAndChangeNothing()
    {
        QFETCH(QStringList, files);
        const QList<QUrl> urls = Files(files);
        QFETCH(QString, reported);
        // Given a model with a change and its history
        Model().SetValue({ Model::MakeObjectId(Model::ObjectKind::Node, 1) }, "node.x", PropertyValue(-1.0));
        const auto nodes = Model().Structure().Nodes().Records();
        const int steps = Model().UndoStack()->count();
        const QStringList recent = m_catalog->Get<RecentFiles>()->Files();
        EventRecorder<ModelFileFailedEvent> failed(*m_catalog->Get<EventBus>());
        FileDrop drop;
        drop.enter(urls);

        // When the files are dropped
        const bool opened = drop.drop(urls);

        // Then the user hears why, and the model, its history and the recent files stay
        QVERIFY(!drop.dragActive());
        QCOMPARE(failed.Count(), 1u);
        QCOMPARE(failed.Last().path, urls.constFirst().toLocalFile());
        if (!reported.isEmpty()) {
            QVERIFY(!opened);
            QCOMPARE(failed.Last().message, reported);
        }
        QCOMPARE(Model().Structure().Nodes().Records(), nodes);
        QCOMPARE(Model().UndoStack()->count(), steps);
        QCOMPARE(m_catalog->Get<RecentFiles>()->Files(), recent);
        QVERIFY(m_catalog->Get<ModelDocument>()->IsModified());
    }

    void shouldOpenADroppedModel()
    {
        // Given the building, when a model file is dropped with another file
        EventRecorder<ModelFileOpenedEvent> opened(*m_catalog->Get<EventBus>());
        FileDrop drop;
        QVERIFY(drop.drop({ File("Notes.txt"), File("Frame.qcm") }));

        // Then the model is the frame, named after its file and first in the recent files
        QCOMPARE(opened.Count(), 1u);
        QCOMPARE(Model().Structure().Members().Size(), 5u);
        QCOMPARE(m_catalog->Get<ModelDocument>()->FilePath(), m_host->FilePath("Frame.qcm"));
        QCOMPARE(m_catalog->Get<RecentFiles>()->Files().value(0), m_host->FilePath("Frame.qcm"));
    }

    void shouldRefuseWhileOpeningIsSwitchedOff()
    {
        // Given file commands switched off (a running analysis may do so)
        QVERIFY(m_catalog->Get<ICommandRepository>()->SetGroupEnabled(L"file", false));
        FileDrop drop;
        QSignalSpy refused(&drop, &FileDrop::refused);

        QVERIFY(!drop.drop({ File("Frame.qcm") }));
        QCOMPARE(refused.count(), 1);
        QCOMPARE(Model().Structure().Members().Size(), 474u);
    }
};

QTEST_MAIN(tst_FileDrop)
#include "tst_filedrop.moc"
