#include "EventRecorder.h"
#include "TestHost.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "document/ModelDocument.h"
#include "model/ModelFile.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"

#include <QFile>
#include <QTest>
#include <QUndoStack>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;

namespace {

const QByteArray c_commands = R"(<commands>
  <command uuid="0b6f6f2e-3c8d-4f1a-9a57-6c2e41d7b5a3" name="UI_COMMAND_OPEN"/>
  <command uuid="5d85bcf0-15b0-44be-9bad-202d1b15dcbc" name="UI_COMMAND_SAVE"/>
  <command uuid="8a1c2f7e-64d3-4b0a-b5e9-3f2d7c91a4e6" name="UI_COMMAND_SAVE_AS"/>
</commands>)";

std::wstring FileParameter(const QString& path)
{
    return RecentFiles::c_fileParameter + path.toStdWString();
}

} // namespace

class tst_ModelDocument : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    StructuralModel& Model() const { return *m_catalog->Get<StructuralModel>(); }
    ModelDocument& Document() const { return *m_catalog->Get<ModelDocument>(); }
    EventBus& Bus() const { return *m_catalog->Get<EventBus>(); }
    bool Run(const wchar_t* command, const QString& file = QString()) const
    {
        return m_catalog->Get<IUICommandProcessor>()->ExecuteCommand(
            command, file.isEmpty() ? std::wstring() : FileParameter(file), L"Test");
    }
    // Writes a portal frame of the given number of bays as a model file.
    QString WriteFrame(const QString& name, int bays) const
    {
        Structure frame;
        ModelGenerator::PortalFrame(frame, { bays, 6.0, 4.0 });
        const QString path = m_host->FilePath(name);
        ModelFile::Save(frame, path);
        return path;
    }

private slots:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_host->WriteFile("Configuration/Commands.xml", c_commands);
        m_catalog = m_host->StartServices();
        Model().Replace([](Structure& structure) { ModelGenerator::Building(structure, BuildingOptions()); });
    }

    void cleanup()
    {
        m_catalog.reset();
        m_host.reset();
    }

    void shouldAskForAFileUntilTheModelHasOne()
    {
        EventRecorder<ModelFileNameNeededEvent> asked(Bus());
        EventRecorder<ModelFileSavedEvent> saved(Bus());

        // Given a model that was never saved, Save asks for a file
        QVERIFY(Run(ModelDocument::c_saveCommand));
        QCOMPARE(asked.Count(), 1u);
        QCOMPARE(asked.Last().operation, ModelFileOperation::Save);
        QVERIFY(asked.Last().suggestedPath.endsWith(".qcm"));
        QCOMPARE(saved.Count(), 0u);

        // When the user names one (without the extension)
        QVERIFY(Run(ModelDocument::c_saveAsCommand, m_host->FilePath("Building")));

        // Then the model is written there, listed first in the recent files and clean
        const QString path = m_host->FilePath("Building.qcm");
        QCOMPARE(saved.Count(), 1u);
        QCOMPARE(saved.Last().path, path);
        QCOMPARE(Document().FilePath(), path);
        QCOMPARE(m_catalog->Get<RecentFiles>()->Files().value(0), path);
        QVERIFY(!Document().IsModified());
        Structure read;
        QVERIFY(!ModelFile::Load(path, read));
        QCOMPARE(read.Members().Records(), Model().Structure().Members().Records());

        // and the next Save writes without asking
        Model().SetValue({ MakeObjectId(ObjectKind::Node, 1) }, "node.x", PropertyValue(-1.0));
        QVERIFY(Document().IsModified());
        QVERIFY(Run(ModelDocument::c_saveCommand));
        QCOMPARE(asked.Count(), 1u);
        QCOMPARE(saved.Count(), 2u);
        QVERIFY(!ModelFile::Load(path, read));
        QCOMPARE(read.Nodes().At(0).x, -1.0);
    }

    void shouldOpenAsOneStepThatUndoTakesBack()
    {
        // Given a saved model with a change since
        const QString building = m_host->FilePath("Building.qcm");
        QVERIFY(Document().SaveAs(building));
        Model().SetValue({ MakeObjectId(ObjectKind::Node, 1) }, "node.x", PropertyValue(-1.0));
        const Structure edited = Model().Structure();
        Model().Select({ MakeObjectId(ObjectKind::Member, 3) });
        EventRecorder<ModelFileOpenedEvent> opened(Bus());

        // When another file is opened
        const QString frame = WriteFrame("Frame.qcm", 2);
        QVERIFY(Run(ModelDocument::c_openCommand, frame));

        // Then it is the model, clean and named after its file, and nothing stays selected
        QCOMPARE(opened.Count(), 1u);
        QCOMPARE(Model().Structure().Members().Size(), 5u);
        QCOMPARE(Document().FilePath(), frame);
        QVERIFY(!Document().IsModified());
        QVERIFY(Model().Selection().empty());

        // When the open is undone, the edited model is back with its own file, so that a Save
        // does not write it over the opened one
        Model().UndoStack()->undo();
        QCOMPARE(Model().Structure().Nodes().Records(), edited.Nodes().Records());
        QCOMPARE(Document().FilePath(), building);
        QVERIFY(Document().IsModified());

        // and redone, the opened file is the model again
        Model().UndoStack()->redo();
        QCOMPARE(Model().Structure().Members().Size(), 5u);
        QCOMPARE(Document().FilePath(), frame);
    }

    void shouldRefuseABadFileAndChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("exists");
        QTest::newRow("not a model") << QByteArray("{\"format\": \"a spreadsheet\"}") << true;
        QTest::newRow("broken") << QByteArray("{\"format\": \"QtComponents structural") << true;
        QTest::newRow("gone") << QByteArray() << false;
    }

    void shouldRefuseABadFileAndChangeNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, exists);
        // Given a model with its history and a bad file that the recent files list
        Model().SetValue({ MakeObjectId(ObjectKind::Node, 1) }, "node.x", PropertyValue(-1.0));
        const Structure before = Model().Structure();
        const int steps = Model().UndoStack()->count();
        const QString path = m_host->FilePath("Bad.qcm");
        if (exists)
            m_host->WriteFile("Bad.qcm", content);
        m_catalog->Get<RecentFiles>()->Add(path);
        EventRecorder<ModelFileFailedEvent> failed(Bus());

        // When it is opened from the recent files
        QVERIFY(Run(ModelDocument::c_openCommand, path));

        // Then the user hears why, the model and its history are as they were, and the file
        // leaves the recent files
        QCOMPARE(failed.Count(), 1u);
        QCOMPARE(failed.Last().operation, ModelFileOperation::Open);
        QCOMPARE(failed.Last().path, path);
        QVERIFY(!failed.Last().message.isEmpty());
        QVERIFY(!failed.Last().message.startsWith("UI_"));
        QCOMPARE(Model().Structure().Nodes().Records(), before.Nodes().Records());
        QCOMPARE(Model().UndoStack()->count(), steps);
        QVERIFY(Document().IsModified());
        QVERIFY(!m_catalog->Get<RecentFiles>()->Files().contains(path));
    }

    void shouldNotListAFileThatCouldNotBeWritten()
    {
        EventRecorder<ModelFileFailedEvent> failed(Bus());
        const QString path = m_host->FilePath("missing/Building.qcm");
        QVERIFY(Run(ModelDocument::c_saveAsCommand, path));
        QCOMPARE(failed.Count(), 1u);
        QCOMPARE(failed.Last().operation, ModelFileOperation::Save);
        QVERIFY(!m_catalog->Get<RecentFiles>()->Files().contains(path));
        QVERIFY(Document().FilePath().isEmpty());
    }

    void shouldAskWhichFileToOpen()
    {
        EventRecorder<ModelFileNameNeededEvent> asked(Bus());
        QVERIFY(Run(ModelDocument::c_openCommand));
        QCOMPARE(asked.Count(), 1u);
        QCOMPARE(asked.Last().operation, ModelFileOperation::Open);
    }
};

QTEST_MAIN(tst_ModelDocument)
#include "tst_modeldocument.moc"
