#include "framework/XMLHandler.h"

#include <QTemporaryDir>
#include <QtTest>

using Orvo::Kernel::Framework::XmlAttributeError;
using Orvo::Kernel::Framework::XMLHandler;

namespace {

// A document <tool name="value"/>, or a bare <tool/> when value is null.
void LoadTool(XMLHandler& document, const QString& name, const QString& value)
{
    const QString attribute = value.isNull() ? QString() : QStringLiteral(" %1=\"%2\"").arg(name, value);
    QVERIFY(document.LoadString(QStringLiteral("<tool%1/>").arg(attribute).toStdWString()));
}

} // namespace

class tst_XMLHandler : public QObject
{
    Q_OBJECT

private slots:
    void shouldRoundTripNonAsciiTextThroughUtf8();
    void shouldWriteADeclarationOnlyWhenAsked();
    void shouldReadFilesInUtf8AndUtf16();
    void shouldReportUnreadableText_data();
    void shouldReportUnreadableText();
    void readAttribBoolReq_data();
    void readAttribBoolReq();
    void readAttribIntReq_data();
    void readAttribIntReq();
    void shouldNameElementAndAttributeOfAMissingAttribute();
};

void tst_XMLHandler::shouldRoundTripNonAsciiTextThroughUtf8()
{
    // Given a document whose names and values leave ASCII (and the Basic Multilingual Plane)
    const std::wstring value = L"Überhöhung ∑ Øresund 構造 \U0001F3D7";
    XMLHandler written;
    pugi::xml_node root = written.AddRootNode(L"marking_menu", true);
    pugi::xml_node section = XMLHandler::AppendChild(root, L"séction");
    XMLHandler::AppendAttrib(section, L"label", value);

    // When it is saved and read back
    std::wstring text;
    written.SaveToString(text);
    XMLHandler read;
    QVERIFY(read.LoadString(text));

    // Then every character survived
    QVERIFY(XMLHandler::HasName(read.RootNode(), L"marking_menu"));
    const pugi::xml_node readSection = read.RootNode().first_child();
    QCOMPARE(XMLHandler::NodeName(readSection), std::wstring(L"séction"));
    QCOMPARE(XMLHandler::ReadAttribReq(readSection, L"label"), value);
}

void tst_XMLHandler::shouldWriteADeclarationOnlyWhenAsked()
{
    XMLHandler document;
    std::wstring text;
    document.AddRootNode(L"root", true);
    document.SaveToString(text);
    QVERIFY(text.rfind(L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>", 0) == 0);

    document.AddRootNode(L"root", false);
    document.SaveToString(text);
    QCOMPARE(QString::fromStdWString(text).trimmed(), QStringLiteral("<root />"));
}

void tst_XMLHandler::shouldReadFilesInUtf8AndUtf16()
{
    QTemporaryDir directory;
    const QString content = QStringLiteral("<marking_menu label=\"Lasten ∑\"/>");
    for (const char* encoding : { "UTF-8", "UTF-16" }) {
        const QString path = directory.filePath(QString::fromLatin1(encoding));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        if (qstrcmp(encoding, "UTF-8") == 0) {
            file.write(content.toUtf8());
        } else {
            file.write("\xFF\xFE"); // little-endian byte order mark
            file.write(reinterpret_cast<const char*>(content.utf16()), content.size() * 2);
        }
        file.close();

        XMLHandler document;
        QVERIFY2(document.LoadFile(path.toStdString()), encoding);
        QCOMPARE(XMLHandler::ReadAttribReq(document.RootNode(), L"label"), std::wstring(L"Lasten ∑"));
    }

    XMLHandler missing;
    QVERIFY(!missing.LoadFile(directory.filePath(QStringLiteral("none.xml")).toStdString()));
    QVERIFY(!missing.RootNode());
}

void tst_XMLHandler::shouldReportUnreadableText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("truncated element") << QStringLiteral("<marking_menu><section id=\"TOP\"");
    QTest::newRow("unclosed root") << QStringLiteral("<marking_menu><section/>");
    QTest::newRow("mismatched end tag") << QStringLiteral("<a></b>");
    QTest::newRow("plain text") << QStringLiteral("marking menu");
}

void tst_XMLHandler::shouldReportUnreadableText()
{
    QFETCH(QString, text);
    XMLHandler document;
    document.AddRootNode(L"previous", false);
    QVERIFY(!document.LoadString(text.toStdWString()));
    // Nothing of the old document and nothing of a partly read one is left.
    QVERIFY(!document.RootNode());
}

void tst_XMLHandler::readAttribBoolReq_data()
{
    QTest::addColumn<QString>("value"); // a null string: the attribute is absent
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("expected");
    QTest::newRow("true") << QStringLiteral("true") << true << true;
    QTest::newRow("false") << QStringLiteral("false") << true << false;
    QTest::newRow("one") << QStringLiteral("1") << true << true;
    QTest::newRow("zero") << QStringLiteral("0") << true << false;
    QTest::newRow("padded") << QStringLiteral(" true ") << true << true;
    QTest::newRow("upper case is no boolean") << QStringLiteral("TRUE") << false << false;
    QTest::newRow("yes is no boolean") << QStringLiteral("yes") << false << false;
    QTest::newRow("empty") << QStringLiteral("") << false << false;
    QTest::newRow("missing") << QString() << false << false;
}

void tst_XMLHandler::readAttribBoolReq()
{
    QFETCH(QString, value);
    QFETCH(bool, valid);
    QFETCH(bool, expected);
    XMLHandler document;
    LoadTool(document, QStringLiteral("visible"), value);
    if (valid)
        QCOMPARE(XMLHandler::ReadAttribBoolReq(document.RootNode(), L"visible"), expected);
    else
        QVERIFY_THROWS_EXCEPTION(XmlAttributeError,
                                 XMLHandler::ReadAttribBoolReq(document.RootNode(), L"visible"));
}

void tst_XMLHandler::readAttribIntReq_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("expected");
    QTest::newRow("digit") << QStringLiteral("6") << true << 6;
    QTest::newRow("negative") << QStringLiteral("-3") << true << -3;
    QTest::newRow("plus sign") << QStringLiteral("+2") << true << 2;
    QTest::newRow("padded") << QStringLiteral(" 7 ") << true << 7;
    QTest::newRow("largest int") << QStringLiteral("2147483647") << true << 2147483647;
    QTest::newRow("beyond int") << QStringLiteral("2147483648") << false << 0;
    QTest::newRow("fraction") << QStringLiteral("1.5") << false << 0;
    QTest::newRow("trailing text") << QStringLiteral("3rd") << false << 0;
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << false << 0;
    QTest::newRow("two signs") << QStringLiteral("+-1") << false << 0;
    QTest::newRow("sign alone") << QStringLiteral("+") << false << 0;
    QTest::newRow("empty") << QStringLiteral("") << false << 0;
    QTest::newRow("missing") << QString() << false << 0;
}

void tst_XMLHandler::readAttribIntReq()
{
    QFETCH(QString, value);
    QFETCH(bool, valid);
    QFETCH(int, expected);
    XMLHandler document;
    LoadTool(document, QStringLiteral("slice"), value);
    if (valid)
        QCOMPARE(XMLHandler::ReadAttribIntReq(document.RootNode(), L"slice"), expected);
    else
        QVERIFY_THROWS_EXCEPTION(XmlAttributeError,
                                 XMLHandler::ReadAttribIntReq(document.RootNode(), L"slice"));
}

void tst_XMLHandler::shouldNameElementAndAttributeOfAMissingAttribute()
{
    XMLHandler document;
    QVERIFY(document.LoadString(L"<tool slice=\"two\"/>"));
    try {
        XMLHandler::ReadAttribReq(document.RootNode(), L"uuid");
        QFAIL("a missing attribute must throw");
    } catch (const XmlAttributeError& error) {
        QCOMPARE(error.Element(), std::wstring(L"tool"));
        QCOMPARE(error.Attribute(), std::wstring(L"uuid"));
        QCOMPARE(QString::fromUtf8(error.what()),
                 QStringLiteral("Required attribute \"uuid\" is missing on element <tool>."));
    }
    try {
        XMLHandler::ReadAttribIntReq(document.RootNode(), L"slice");
        QFAIL("a malformed attribute must throw");
    } catch (const XmlAttributeError& error) {
        QCOMPARE(QString::fromUtf8(error.what()),
                 QStringLiteral("Attribute \"slice\" of element <tool> is not an integer: \"two\"."));
    }
}

QTEST_GUILESS_MAIN(tst_XMLHandler)
#include "tst_xmlhandler.moc"
