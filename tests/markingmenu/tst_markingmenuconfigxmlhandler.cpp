#include "ClassicCLocale.h"
#include "TestHost.h"
#include "framework/XMLHandler.h"
#include "markingmenu/MarkingMenuConfig.h"
#include "markingmenu/MarkingMenuConfigXmlHandler.h"
#include "qtextensions/File.h"

#include <QtTest>

using Orvo::Kernel::Framework::XmlAttributeError;
using Orvo::UI::UIComponents::MarkingMenuConfig;
using Orvo::UI::UIComponents::MarkingMenuConfigXmlHandler;
using Orvo::UI::UIComponents::MarkingMenuSectionConfig;

namespace {

const QString c_fullXml = QStringLiteral(R"(<marking_menu>
  <section id="TOP" label="Model" lcid="UI_MARKING_MENU_SECTION_MODEL" icon="Images/MarkingMenu/model.svg"/>
  <section id="RIGHT" label="Loads" lcid="UI_MARKING_MENU_SECTION_LOADS" icon="Images/MarkingMenu/loads.svg"/>
  <section id="BOTTOM" label="View" lcid="UI_MARKING_MENU_SECTION_VIEW" icon="/usr/share/icons/view.svg"/>
  <section id="LEFT" label="Edit" lcid="UI_MARKING_MENU_SECTION_EDIT" icon=""/>
</marking_menu>)");

const QString c_userXml = QStringLiteral(R"(<marking_menu>
  <section id="TOP" visible="true"><tool uuid="node" slice="1"/><tool uuid="member" slice="3"/></section>
  <section id="RIGHT" visible="false"><tool uuid="load" slice="6"/></section>
  <section id="BOTTOM" visible="true"/>
  <section id="LEFT" visible="true"><tool uuid="move" slice="2"/><tool uuid="delete" slice="5"/></section>
</marking_menu>)");

// "visible|uuid1,uuid2,..." of each section, top to bottom to left, for comparing whole menus.
QStringList UserState(const MarkingMenuConfig& config)
{
    QStringList state;
    for (const auto* section :
         { config.topSection(), config.rightSection(), config.bottomSection(), config.leftSection() }) {
        state << QStringLiteral("%1|%2").arg(section->sectionVisible() ? "shown" : "hidden",
                                             section->commandUuids().join(QLatin1Char(',')));
    }
    return state;
}

QStringList FullState(const MarkingMenuConfig& config)
{
    QStringList state;
    for (const auto* section :
         { config.topSection(), config.rightSection(), config.bottomSection(), config.leftSection() }) {
        state << QStringLiteral("%1|%2|%3").arg(section->label(), section->lcid(), section->icon());
    }
    return state;
}

std::unique_ptr<MarkingMenuConfig> ReadFull(const QString& xml)
{
    return MarkingMenuConfigXmlHandler::FromXml(xml.toStdWString());
}

enum class Outcome
{
    Read,
    InvalidDocument,
    AttributeError,
};

// Runs reader and reports which of the specified outcomes it had; any other exception fails.
template<class Reader> Outcome Classify(Reader reader)
{
    try {
        reader();
        return Outcome::Read;
    } catch (const std::invalid_argument& error) {
        if (QString::fromUtf8(error.what()) != QStringLiteral("Input XML for MarkingMenu is not valid."))
            qWarning() << "unexpected invalid_argument" << error.what();
        return Outcome::InvalidDocument;
    } catch (const XmlAttributeError&) {
        return Outcome::AttributeError;
    }
}

} // namespace

Q_DECLARE_METATYPE(Outcome)

class tst_MarkingMenuConfigXmlHandler : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void shouldWriteTheFullVariantOfADefaultConfiguration();
    void shouldWriteTheUserVariantOfADefaultConfiguration();
    void shouldResolveIconsAndWriteThemBackRelative();
    void shouldRoundTripTheUserVariantKeepingGaps();
    void shouldReadNonAsciiIconPathsInTheClassicCLocale_data();
    void shouldReadNonAsciiIconPathsInTheClassicCLocale();
    void fullReader_data();
    void fullReader();
    void userReader_data();
    void userReader();
    void shouldLeaveEarlierSectionsChangedWhenAUserDocumentBreaksPartWay();
    void shouldThrowOnlyTheSpecifiedErrorsForDamagedDocuments();

private:
    std::unique_ptr<TestHost> m_host;
};

void tst_MarkingMenuConfigXmlHandler::init()
{
    m_host = std::make_unique<TestHost>();
}

void tst_MarkingMenuConfigXmlHandler::cleanup()
{
    m_host.reset();
}

void tst_MarkingMenuConfigXmlHandler::shouldWriteTheFullVariantOfADefaultConfiguration()
{
    const MarkingMenuConfig config;
    QCOMPARE(QString::fromStdWString(MarkingMenuConfigXmlHandler::ToXml(config)),
             QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                            "<marking_menu>\n"
                            "  <section id=\"TOP\" label=\"\" lcid=\"\" icon=\"\" />\n"
                            "  <section id=\"RIGHT\" label=\"\" lcid=\"\" icon=\"\" />\n"
                            "  <section id=\"BOTTOM\" label=\"\" lcid=\"\" icon=\"\" />\n"
                            "  <section id=\"LEFT\" label=\"\" lcid=\"\" icon=\"\" />\n"
                            "</marking_menu>\n"));
}

void tst_MarkingMenuConfigXmlHandler::shouldWriteTheUserVariantOfADefaultConfiguration()
{
    const MarkingMenuConfig config;
    QCOMPARE(QString::fromStdWString(MarkingMenuConfigXmlHandler::UserConfigToXml(config)),
             QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                            "<marking_menu>\n"
                            "  <section id=\"TOP\" visible=\"false\" />\n"
                            "  <section id=\"RIGHT\" visible=\"false\" />\n"
                            "  <section id=\"BOTTOM\" visible=\"false\" />\n"
                            "  <section id=\"LEFT\" visible=\"false\" />\n"
                            "</marking_menu>\n"));
}

void tst_MarkingMenuConfigXmlHandler::shouldResolveIconsAndWriteThemBackRelative()
{
    // Given the shipped full configuration, read
    const auto config = ReadFull(c_fullXml);

    // Then a relative icon is an image source under the application directory, an absolute one
    // is kept, an empty one stays empty, and nothing of the user variant was read
    QCOMPARE(config->topSection()->icon(),
             QUrl::fromLocalFile(m_host->FilePath("Images/MarkingMenu/model.svg")).toString());
    QCOMPARE(config->bottomSection()->icon(), QStringLiteral("file:///usr/share/icons/view.svg"));
    QCOMPARE(config->leftSection()->icon(), QString());
    QCOMPARE(config->rightSection()->label(), QStringLiteral("Loads"));
    QCOMPARE(config->rightSection()->lcid(), QStringLiteral("UI_MARKING_MENU_SECTION_LOADS"));
    QCOMPARE(UserState(*config), UserState(MarkingMenuConfig()));

    // When it is written again, the icons are the paths the file gave
    const QString written = QString::fromStdWString(MarkingMenuConfigXmlHandler::ToXml(*config));
    QVERIFY(written.contains(QStringLiteral("icon=\"Images/MarkingMenu/model.svg\"")));
    QVERIFY(written.contains(QStringLiteral("icon=\"/usr/share/icons/view.svg\"")));
    QVERIFY(!written.contains(QStringLiteral("visible")));
    QCOMPARE(FullState(*ReadFull(written)), FullState(*config));
}

void tst_MarkingMenuConfigXmlHandler::shouldRoundTripTheUserVariantKeepingGaps()
{
    // Given a menu whose left section holds commands in slots 2 and 5 only
    MarkingMenuConfig config;
    MarkingMenuConfigXmlHandler::FromUserConfigXml(config, c_userXml.toStdWString());
    QCOMPARE(config.leftSection()->commandUuids(), QStringList({ "", "move", "", "", "delete", "" }));

    // When it is written, the gaps are not written and the slice numbers are list positions
    const QString written = QString::fromStdWString(MarkingMenuConfigXmlHandler::UserConfigToXml(config));
    QVERIFY(written.contains(QStringLiteral("<section id=\"LEFT\" visible=\"true\">\n"
                                            "    <tool uuid=\"move\" slice=\"2\" />\n"
                                            "    <tool uuid=\"delete\" slice=\"5\" />\n"
                                            "  </section>")));
    QVERIFY(!written.contains(QStringLiteral("label")));

    // Then it reads back to the same six-entry lists and visibilities
    MarkingMenuConfig readBack;
    MarkingMenuConfigXmlHandler::FromUserConfigXml(readBack, written.toStdWString());
    QCOMPARE(UserState(readBack), UserState(config));
}

void tst_MarkingMenuConfigXmlHandler::shouldReadNonAsciiIconPathsInTheClassicCLocale_data()
{
    QTest::addColumn<QString>("icon");
    QTest::newRow("accented, relative") << QStringLiteral("images/\u00E9.svg");
    QTest::newRow("cyrillic folder, relative")
        << QStringLiteral("\u0418\u043A\u043E\u043D\u043A\u0438/ring.svg");
    QTest::newRow("accented, absolute") << QStringLiteral("/opt/ic\u00F4nes/model.svg");
}

void tst_MarkingMenuConfigXmlHandler::shouldReadNonAsciiIconPathsInTheClassicCLocale()
{
    QFETCH(QString, icon);
    const ClassicCLocale classicLocale;

    // Given a shipped menu whose top section has a non-ASCII icon path, read in the "C" locale
    const QString xml = QStringLiteral("<marking_menu><section id=\"TOP\" label=\"Model\" lcid=\"UI_M\" "
                                       "icon=\"%1\"/></marking_menu>")
                            .arg(icon);
    std::unique_ptr<MarkingMenuConfig> config;
    QCOMPARE(Classify([&]() { config = ReadFull(xml); }), Outcome::Read);

    // Then the icon is the file's image source, and it is written back as the same path
    const QString file = icon.startsWith(QLatin1Char('/')) ? icon : m_host->FilePath(icon);
    QCOMPARE(config->topSection()->icon(), QUrl::fromLocalFile(file).toString());
    QCOMPARE(config->topSection()->label(), QStringLiteral("Model"));
    QVERIFY(QString::fromStdWString(MarkingMenuConfigXmlHandler::ToXml(*config))
                .contains(QStringLiteral("icon=\"%1\"").arg(icon)));
}

void tst_MarkingMenuConfigXmlHandler::fullReader_data()
{
    QTest::addColumn<QString>("sections");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("topLabel");
    const QString top = QStringLiteral("<section id=\"TOP\" label=\"Model\" lcid=\"UI_M\" icon=\"m.svg\"/>");
    QTest::newRow("all attributes") << top << Outcome::Read << "Model";
    QTest::newRow("no sections") << QString() << Outcome::Read << "";
    QTest::newRow("no id") << "<section label=\"Model\" lcid=\"UI_M\" icon=\"m.svg\"/>"
                           << Outcome::AttributeError << "";
    QTest::newRow("no label") << "<section id=\"TOP\" lcid=\"UI_M\" icon=\"m.svg\"/>"
                              << Outcome::AttributeError << "";
    QTest::newRow("no lcid") << "<section id=\"TOP\" label=\"Model\" icon=\"m.svg\"/>"
                             << Outcome::AttributeError << "";
    QTest::newRow("no icon") << "<section id=\"TOP\" label=\"Model\" lcid=\"UI_M\"/>"
                             << Outcome::AttributeError << "";
    QTest::newRow("unknown id still needs its attributes")
        << "<section id=\"top\" label=\"Model\"/>" << Outcome::AttributeError << "";
    QTest::newRow("lower-case id is unknown")
        << "<section id=\"top\" label=\"Model\" lcid=\"UI_M\" icon=\"m.svg\"/>" << Outcome::Read << "";
    QTest::newRow("other elements ignored")
        << "<tool uuid=\"x\"/><comment/>" + top << Outcome::Read << "Model";
    QTest::newRow("later section wins")
        << top + "<section id=\"TOP\" label=\"Later\" lcid=\"UI_L\" icon=\"\"/>" << Outcome::Read << "Later";
    QTest::newRow("user data ignored") << "<section id=\"TOP\" visible=\"true\" label=\"Model\" "
                                          "lcid=\"UI_M\" icon=\"m.svg\"><tool uuid=\"a\" "
                                          "slice=\"1\"/></section>"
                                       << Outcome::Read << "Model";
}

void tst_MarkingMenuConfigXmlHandler::fullReader()
{
    QFETCH(QString, sections);
    QFETCH(Outcome, outcome);
    QFETCH(QString, topLabel);
    std::unique_ptr<MarkingMenuConfig> config;
    QCOMPARE(Classify([&]() { config = ReadFull("<marking_menu>" + sections + "</marking_menu>"); }),
             outcome);
    if (outcome != Outcome::Read)
        return;
    QCOMPARE(config->topSection()->label(), topLabel);
    // The full variant never carries visibility or commands.
    QCOMPARE(UserState(*config), UserState(MarkingMenuConfig()));
}

void tst_MarkingMenuConfigXmlHandler::userReader_data()
{
    QTest::addColumn<QString>("sections");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QStringList>("expected");
    // Every row starts from the configuration of c_userXml.
    const QStringList before { "shown|node,,member,,,", "hidden|,,,,,load", "shown|,,,,,",
                               "shown|,move,,,delete," };
    auto with = [&before](int section, const QString& state) {
        QStringList changed = before;
        changed[section] = state;
        return changed;
    };
    QTest::newRow("nothing named") << QString() << Outcome::Read << before;
    QTest::newRow("only LEFT named")
        << "<section id=\"LEFT\" visible=\"false\"><tool uuid=\"copy\" slice=\"1\"/></section>"
        << Outcome::Read << with(3, "hidden|copy,,,,,");
    QTest::newRow("slice 0 and 7 ignored, slots still cleared")
        << "<section id=\"TOP\" visible=\"false\"><tool uuid=\"a\" slice=\"0\"/><tool uuid=\"b\" "
           "slice=\"7\"/></section>"
        << Outcome::Read << with(0, "hidden|,,,,,");
    QTest::newRow("negative slice ignored")
        << "<section id=\"TOP\" visible=\"true\"><tool uuid=\"a\" slice=\"-2147483648\"/></section>"
        << Outcome::Read << with(0, "shown|,,,,,");
    QTest::newRow("later tool wins") << "<section id=\"TOP\" visible=\"true\"><tool uuid=\"a\" "
                                        "slice=\"4\"/><tool uuid=\"b\" slice=\"4\"/></section>"
                                     << Outcome::Read << with(0, "shown|,,,b,,");
    QTest::newRow("lower-case id is unknown")
        << "<section id=\"top\" visible=\"false\"><tool uuid=\"a\" slice=\"1\"/></section>" << Outcome::Read
        << before;
    QTest::newRow("full data ignored")
        << "<section id=\"RIGHT\" visible=\"true\" label=\"L\" lcid=\"UI_L\" icon=\"i\"/>" << Outcome::Read
        << with(1, "shown|,,,,,");
    QTest::newRow("other children ignored")
        << "<section id=\"RIGHT\" visible=\"true\"><command uuid=\"a\" slice=\"1\"/></section>"
        << Outcome::Read << with(1, "shown|,,,,,");
    QTest::newRow("no id") << "<section visible=\"true\"/>" << Outcome::AttributeError << before;
    QTest::newRow("no visible") << "<section id=\"TOP\"/>" << Outcome::AttributeError << before;
    QTest::newRow("visible no boolean")
        << "<section id=\"TOP\" visible=\"yes\"/>" << Outcome::AttributeError << before;
    QTest::newRow("tool without slice") << "<section id=\"TOP\" visible=\"true\"><tool uuid=\"a\"/></section>"
                                        << Outcome::AttributeError << with(0, "shown|,,,,,");
    QTest::newRow("slice no integer")
        << "<section id=\"TOP\" visible=\"true\"><tool uuid=\"a\" slice=\"first\"/></section>"
        << Outcome::AttributeError << with(0, "shown|,,,,,");
    QTest::newRow("tool without uuid") << "<section id=\"TOP\" visible=\"true\"><tool slice=\"1\"/></section>"
                                       << Outcome::AttributeError << with(0, "shown|,,,,,");
}

void tst_MarkingMenuConfigXmlHandler::userReader()
{
    QFETCH(QString, sections);
    QFETCH(Outcome, outcome);
    QFETCH(QStringList, expected);
    MarkingMenuConfig config;
    MarkingMenuConfigXmlHandler::FromUserConfigXml(config, c_userXml.toStdWString());
    const QString xml = "<marking_menu>" + sections + "</marking_menu>";
    QCOMPARE(Classify([&]() { MarkingMenuConfigXmlHandler::FromUserConfigXml(config, xml.toStdWString()); }),
             outcome);
    QCOMPARE(UserState(config), expected);
}

void tst_MarkingMenuConfigXmlHandler::shouldLeaveEarlierSectionsChangedWhenAUserDocumentBreaksPartWay()
{
    MarkingMenuConfig config;
    const std::wstring xml = L"<marking_menu><section id=\"RIGHT\" visible=\"true\"/>"
                             L"<section id=\"LEFT\" visible=\"maybe\"/></marking_menu>";
    QVERIFY_THROWS_EXCEPTION(XmlAttributeError, MarkingMenuConfigXmlHandler::FromUserConfigXml(config, xml));
    QVERIFY(config.rightSection()->sectionVisible());
    QVERIFY(!config.leftSection()->sectionVisible());
}

void tst_MarkingMenuConfigXmlHandler::shouldThrowOnlyTheSpecifiedErrorsForDamagedDocuments()
{
    // Every truncation of both shipped documents, and each with one character dropped: the
    // readers either read it or throw one of their two specified errors, never anything else.
    QTest::failOnWarning(QRegularExpression("unexpected"));
    for (const QString& document : { c_fullXml, c_userXml }) {
        QList<QString> damaged;
        for (int length = 0; length < document.size(); ++length)
            damaged << document.left(length);
        for (int position = 0; position < document.size(); ++position)
            damaged << QString(document).remove(position, 1);
        for (const QString& text : damaged) {
            const std::wstring xml = text.toStdWString();
            Classify([&]() { ReadFull(text); });
            MarkingMenuConfig config;
            const Outcome outcome
                = Classify([&]() { MarkingMenuConfigXmlHandler::FromUserConfigXml(config, xml); });
            if (outcome == Outcome::InvalidDocument) // nothing applied from a document that does not parse
                QCOMPARE(UserState(config), UserState(MarkingMenuConfig()));
        }
    }
}

QTEST_GUILESS_MAIN(tst_MarkingMenuConfigXmlHandler)
#include "tst_markingmenuconfigxmlhandler.moc"
