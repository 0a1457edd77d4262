#include "model/ModelFile.h"
#include "model/ModelGenerator.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Orvo::Kernel::Model;

namespace {

template<class Record> bool SameTable(const Structure& a, const Structure& b)
{
    return a.Table<Record>().Records() == b.Table<Record>().Records()
        && a.Table<Record>().NextNumber() == b.Table<Record>().NextNumber();
}

bool SameStructure(const Structure& a, const Structure& b)
{
    return SameTable<Node>(a, b) && SameTable<Member>(a, b) && SameTable<Support>(a, b)
        && SameTable<CrossSection>(a, b) && SameTable<Material>(a, b) && SameTable<LoadCase>(a, b)
        && SameTable<NodalLoad>(a, b) && SameTable<MemberLoad>(a, b) && SameTable<Combination>(a, b);
}

Structure Building()
{
    Structure structure;
    ModelGenerator::Building(structure, BuildingOptions());
    return structure;
}

// A small valid file: two nodes, a member between them, its section and material, a load case
// with one load on the member. The malformed cases change one thing of it.
QJsonObject SmallFile()
{
    return QJsonDocument::fromJson(R"({
        "format": "QtComponents structural model", "version": 1,
        "nodes": [ { "number": 1, "x": 0, "y": 0, "z": 0 }, { "number": 2, "x": 4, "y": 0, "z": 0 } ],
        "sections": [ { "number": 1, "shape": "I", "height": 300, "width": 150 } ],
        "materials": [ { "number": 1, "category": "steel", "grade": 0, "color": "#336699" } ],
        "members": [ { "number": 1, "startNode": 1, "endNode": 2, "section": 1, "material": 1,
                       "startReleases": ["ry", "rz"] } ],
        "supports": [ { "number": 1, "node": 1, "fixed": ["ux", "uy", "uz"] } ],
        "loadCases": [ { "number": 1, "category": "imposed" } ],
        "memberLoads": [ { "number": 1, "loadCase": 1, "member": 1, "direction": "globalZ", "value": -5 } ],
        "combinations": [ { "number": 1, "factors": [ { "loadCase": 1, "factor": 1.5 } ] } ]
    })")
        .object();
}

// Sets one value of the small file; the path names a list entry as "list/index/key".
QByteArray WithValue(const QString& path, const QJsonValue& value)
{
    QJsonObject root = SmallFile();
    const QStringList parts = path.split(QLatin1Char('/'));
    if (parts.size() == 1) {
        root[parts[0]] = value;
    } else {
        QJsonArray list = root[parts[0]].toArray();
        QJsonObject entry = list[parts[1].toInt()].toObject();
        entry[parts[2]] = value;
        list[parts[1].toInt()] = entry;
        root[parts[0]] = list;
    }
    return QJsonDocument(root).toJson();
}

} // namespace

class tst_ModelFile : public QObject
{
    Q_OBJECT

private slots:
    void shouldReadBackWhatItWrote_data()
    {
        QTest::addColumn<int>("model");
        QTest::newRow("the demo's building") << 0;
        QTest::newRow("a portal frame") << 1;
        QTest::newRow("objects removed before saving") << 2;
        QTest::newRow("nothing") << 3;
        QTest::newRow("names and colours of the user's own") << 4;
    }

    void shouldReadBackWhatItWrote()
    {
        // Given a model
        QFETCH(int, model);
        Structure written;
        if (model == 0) {
            written = Building();
        } else if (model == 1) {
            ModelGenerator::PortalFrame(written, { 3, 7.5, 5.25 });
        } else if (model == 2) {
            // the last numbers of a kind are gone; a new object must not take them again
            ModelGenerator::PortalFrame(written, { 2, 6.0, 4.0 });
            written.MemberLoads().Remove(written.MemberLoads().Records().back().number);
            written.Combinations().Remove(written.Combinations().Records().back().number);
        } else if (model == 4) {
            ModelGenerator::PortalFrame(written, { 1, 6.0, 4.0 });
            written.Nodes().At(0).name = QStringLiteral("Fuß \"A\" – ½");
            written.Materials().At(0).color = QColor(10, 20, 30, 128);
            written.Materials().At(0).grade = -1;
            written.Members().At(0).rotation = 0.1 + 0.2; // not a short decimal
            written.Sections().At(0).shape = SectionShape::CircularHollow;
        }

        // When it is written and read again
        const QByteArray json = ModelFile::ToJson(written);
        Structure read;
        ModelGenerator::PortalFrame(read, { 1, 1.0, 1.0 });
        const ModelFileError error = ModelFile::FromJson(json, read);

        // Then every object comes back as it was, and numbers keep counting where they were
        QVERIFY2(!error, qPrintable(error.ToText(nullptr)));
        QVERIFY(SameStructure(read, written));
    }

    void shouldRefuseMalformedFilesAndKeepTheModel_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("expected");

        QTest::newRow("empty") << QByteArray() << "UI_MODEL_FILE_NOT_JSON";
        QTest::newRow("cut short") << QJsonDocument(SmallFile()).toJson().left(200)
                                   << "UI_MODEL_FILE_NOT_JSON";
        QTest::newRow("binary") << QByteArray("\x00\xff\xfe{", 4) << "UI_MODEL_FILE_NOT_JSON";
        QTest::newRow("a list") << QByteArray("[1, 2]") << "UI_MODEL_FILE_NOT_MODEL";
        QTest::newRow("another format") << WithValue("format", "something else") << "UI_MODEL_FILE_NOT_MODEL";
        QTest::newRow("no version") << WithValue("version", QJsonValue::Undefined)
                                    << "UI_MODEL_FILE_BAD_VERSION";
        QTest::newRow("version as text") << WithValue("version", "1") << "UI_MODEL_FILE_BAD_VERSION";
        QTest::newRow("version 0") << WithValue("version", 0) << "UI_MODEL_FILE_BAD_VERSION";
        QTest::newRow("a newer version") << WithValue("version", 2) << "UI_MODEL_FILE_NEWER (2, 1)";
        QTest::newRow("nodes not a list")
            << WithValue("nodes", QJsonObject()) << "UI_MODEL_FILE_BAD_LIST (nodes)";
        QTest::newRow("entry not an object")
            << WithValue("nodes", QJsonArray { 1, 2 }) << "UI_MODEL_FILE_BAD_FIELD (1, nodes, number)";
        QTest::newRow("no number") << WithValue("nodes/1/number", QJsonValue::Undefined)
                                   << "UI_MODEL_FILE_BAD_FIELD (2, nodes, number)";
        QTest::newRow("number 0") << WithValue("nodes/0/number", 0)
                                  << "UI_MODEL_FILE_BAD_FIELD (1, nodes, number)";
        QTest::newRow("fractional number")
            << WithValue("nodes/0/number", 1.5) << "UI_MODEL_FILE_BAD_FIELD (1, nodes, number)";
        QTest::newRow("number beyond ids")
            << WithValue("nodes/0/number", 16777216) << "UI_MODEL_FILE_BAD_FIELD (1, nodes, number)";
        QTest::newRow("coordinate as text")
            << WithValue("nodes/1/x", "4") << "UI_MODEL_FILE_BAD_FIELD (2, nodes, x)";
        QTest::newRow("number beyond a double")
            << QJsonDocument(SmallFile()).toJson().replace("\"x\": 4", "\"x\": 1e400")
            << "UI_MODEL_FILE_NOT_JSON";
        QTest::newRow("same number twice")
            << WithValue("nodes/1/number", 1) << "UI_MODEL_FILE_DUPLICATE (UI_OBJECT_NODE 1)";
        QTest::newRow("unknown shape")
            << WithValue("sections/0/shape", "T") << "UI_MODEL_FILE_BAD_FIELD (1, sections, shape)";
        QTest::newRow("unknown degree of freedom")
            << WithValue("members/0/startReleases", QJsonArray { "ry", "twist" })
            << "UI_MODEL_FILE_BAD_FIELD (1, members, startReleases)";
        QTest::newRow("grade beyond the catalogue")
            << WithValue("materials/0/grade", 999) << "UI_MODEL_FILE_BAD_FIELD (1, materials, grade)";
        QTest::newRow("not a colour")
            << WithValue("materials/0/color", "#12") << "UI_MODEL_FILE_BAD_FIELD (1, materials, color)";
        QTest::newRow("five spring values") << WithValue("supports/0/springs", QJsonArray { 0, 0, 0, 0, 0 })
                                            << "UI_MODEL_FILE_BAD_FIELD (1, supports, springs)";
        QTest::newRow("factor as text") << WithValue(
            "combinations/0/factors", QJsonArray { QJsonObject { { "loadCase", 1 }, { "factor", "1.5" } } })
                                        << "UI_MODEL_FILE_BAD_FIELD (1, combinations, factors)";
        // Each field is well formed, but the objects break the rules a structure keeps.
        QTest::newRow("member to a node that is not there")
            << WithValue("members/0/endNode", 9)
            << "UI_MODEL_FILE_OBJECT_PROBLEM (UI_OBJECT_MEMBER 1, UI_MODEL_ERROR_NO_NODE (9))";
        QTest::newRow("member without length") << WithValue("nodes/1/x", 0)
                                               << "UI_MODEL_FILE_OBJECT_PROBLEM (UI_OBJECT_MEMBER 1, "
                                                  "UI_MODEL_ERROR_ZERO_LENGTH (UI_OBJECT_MEMBER 1, 1, 2))";
        QTest::newRow("load in a load case that is not there")
            << WithValue("memberLoads/0/loadCase", 3)
            << "UI_MODEL_FILE_OBJECT_PROBLEM (UI_OBJECT_MEMBER_LOAD 1, UI_MODEL_ERROR_NO_LOAD_CASE (3))";
        QTest::newRow("flanges thicker than the section")
            << WithValue("sections/0/flangeThickness", 200)
            << "UI_MODEL_FILE_OBJECT_PROBLEM (UI_OBJECT_CROSS_SECTION 1, UI_MODEL_ERROR_FLANGES_TOO_THICK "
               "(200, 300))";
    }

    void shouldRefuseMalformedFilesAndKeepTheModel()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, expected);
        // Given a model in use
        Structure structure = Building();
        const Structure before = structure;

        // When a malformed file is read into it
        const ModelFileError error = ModelFile::FromJson(file, structure);

        // Then the reader says why (the parser's own words aside), and the model is as it was
        QVERIFY(error);
        const QString described = error.message.id == QLatin1String("UI_MODEL_FILE_NOT_JSON")
            ? error.message.id
            : error.ToText(nullptr);
        QCOMPARE(described, expected);
        QVERIFY(SameStructure(structure, before));
    }

    void shouldReadTheSmallFileAndIgnoreWhatALaterVersionAdds()
    {
        // Given the small file with a key this version does not know
        QJsonObject root = SmallFile();
        root["results"] = QJsonObject { { "computed", true } };
        Structure structure;

        // When it is read, its objects are there with the defaults of what it leaves out
        QVERIFY(!ModelFile::FromJson(QJsonDocument(root).toJson(), structure));
        QCOMPARE(structure.Members().Size(), 1u);
        QCOMPARE(structure.Members().At(0).startReleases, DofMask(Dof(4) | Dof(5)));
        QCOMPARE(structure.Supports().At(0).fixed, c_translations);
        QCOMPARE(structure.LoadCases().At(0).category, LoadCategory::Imposed);
        QCOMPARE(structure.Materials().At(0).color, QColor(0x33, 0x66, 0x99));
        QCOMPARE(structure.Sections().At(0).flangeThickness, CrossSection().flangeThickness);
        // and a new node takes the number after the file's last one
        QCOMPARE(structure.Nodes().NextNumber(), 3);
    }

    void shouldKeepThePreviousFileWhenWritingFails()
    {
        // Given a model file on disk
        QTemporaryDir directory;
        const QString path = directory.filePath("model.qcm");
        QVERIFY(!ModelFile::Save(Building(), path));
        const QByteArray saved = [&] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        }();

        // When a file cannot be written (its folder is not there), nor read
        const ModelFileError error = ModelFile::Save(Structure(), directory.filePath("missing/model.qcm"));
        QVERIFY(error);
        QCOMPARE(error.message.id, "UI_MODEL_FILE_CANNOT_WRITE");
        Structure structure;
        QCOMPARE(ModelFile::Load(directory.filePath("gone.qcm"), structure).message.id,
                 "UI_MODEL_FILE_CANNOT_READ");

        // Then the file that was there reads as before
        QVERIFY(!ModelFile::Load(path, structure));
        QVERIFY(SameStructure(structure, Building()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), saved);
    }

    void shouldKnowModelFilesByTheirExtension_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("model");
        QTest::newRow("model") << "/home/a/Frame.qcm" << true;
        QTest::newRow("upper case") << "/home/a/FRAME.QCM" << true;
        QTest::newRow("text") << "/home/a/Frame.txt" << false;
        QTest::newRow("extension in the folder") << "/home/a.qcm/Frame" << false;
        QTest::newRow("no name") << "" << false;
    }

    void shouldKnowModelFilesByTheirExtension()
    {
        QFETCH(QString, path);
        QFETCH(bool, model);
        QCOMPARE(ModelFile::IsModelFileName(path), model);
    }
};

QTEST_GUILESS_MAIN(tst_ModelFile)
#include "tst_modelfile.moc"
