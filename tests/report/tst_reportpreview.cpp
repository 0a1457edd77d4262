#include "TestHost.h"
#include "analysis/AnalysisService.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "report/ReportDocument.h"
#include "report/ReportPageImageProvider.h"
#include "report/ReportPreview.h"
#include "tables/ObjectTableData.h"
#include "tables/TableDataCatalog.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <map>

using namespace Orvo::Kernel;
using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;

class tst_ReportPreview : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestHost> m_host;
    std::shared_ptr<ServiceCatalog> m_catalog;

    std::shared_ptr<StructuralModel> StructureModel() const { return m_catalog->Get<StructuralModel>(); }

    bool Analyse() const
    {
        const auto analysis = m_catalog->Get<Analysis::AnalysisService>();
        QSignalSpy finished(analysis.get(), &Analysis::AnalysisService::finished);
        return analysis->start() && finished.wait(10000) && finished.at(0).at(0).toBool();
    }

    // The label of the model's input table of one kind of object.
    QString TableLabel(Model::ObjectKind kind) const
    {
        const auto* model = m_catalog->Get<Tables::TableDataCatalog>()->FindWorkstation(
            Tables::TableDataCatalog::c_modelWorkstation);
        for (const auto& table : model->tables) {
            const auto* objects = dynamic_cast<const Tables::ObjectTableData*>(table.get());
            if (objects && objects->Kind() == kind)
                return QString::fromStdWString(objects->GetLabel());
        }
        return QString();
    }

    // The headings of a report as "level:text", in order.
    static QStringList Headings(const ReportDocument& report)
    {
        QStringList headings;
        for (const auto& heading : report.Headings())
            headings << QStringLiteral("%1:%2").arg(heading.level).arg(heading.text);
        return headings;
    }

    // The rows of each table of a report (header included), by the heading it follows.
    static std::map<QString, int> TableRowsByHeading(const QTextDocument& document)
    {
        std::map<QString, int> rows;
        QString heading;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (const QTextTable* table = QTextCursor(block).currentTable()) {
                rows.emplace(heading, table->rows());
                continue;
            }
            if (block.blockFormat().headingLevel() > 0)
                heading = block.text();
        }
        return rows;
    }

    std::unique_ptr<ReportPreview> MadeAsByQml()
    {
        auto preview = std::make_unique<ReportPreview>();
        // As the engine does, through the item's parser status interface.
        QQmlParserStatus* status = preview.get();
        status->classBegin();
        status->componentComplete();
        return preview;
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

    void shouldReportTheModelAndItsResults_data()
    {
        QTest::addColumn<bool>("analysed");
        QTest::newRow("before an analysis") << false;
        QTest::newRow("after an analysis") << true;
    }

    void shouldReportTheModelAndItsResults()
    {
        QFETCH(bool, analysed);
        // Given the portal frame, analysed or not
        if (analysed)
            QVERIFY(Analyse());

        // When its report is made
        ReportPreview preview;
        preview.setProjectName("Portal frame");
        preview.refresh();
        const auto report = preview.Report();
        QVERIFY(report);

        // Then the title page names the project and shows the model, and the sections follow
        const QStringList headings = Headings(*report);
        QCOMPARE(headings.value(0), "1:Structural analysis report");
        QVERIFY2(headings.contains("2:View of the model"), qPrintable(headings.join(" | ")));
        QVERIFY(report->PlainText().contains("Portal frame"));
        const QImage picture = report->Document()
                                   .resource(QTextDocument::ImageResource, QUrl("report:view.png"))
                                   .value<QImage>();
        QVERIFY(!picture.isNull());
        // The model's lines cross the background's gradient, which is even along a row
        QSet<QRgb> colours;
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, picture.height() / 2));
        QVERIFY(colours.size() > 1);
        const QString nodes = TableLabel(Model::ObjectKind::Node);
        const QString members = TableLabel(Model::ObjectKind::Member);
        QVERIFY(headings.contains("2:" + nodes));
        QVERIFY(headings.contains("2:" + members));
        QVERIFY(headings.contains("1:Results"));
        // The input tables hold every object under a header row
        const auto rows = TableRowsByHeading(report->Document());
        QCOMPARE(rows.at(nodes), 4 + 1);
        QCOMPARE(rows.at(members), 3 + 1);
        // The results are summarised once there are any, and said to be missing before
        QCOMPARE(headings.contains("2:Summary"), analysed);
        QCOMPARE(report->PlainText().contains("No results"), !analysed);
        QCOMPARE(preview.hasResults(), analysed);
        if (analysed) {
            // One summary row per load case (3) and combination
            const int sets = int(StructureModel()->Structure().LoadCases().Size()
                                 + StructureModel()->Structure().Combinations().Size());
            QCOMPARE(rows.at("Summary"), sets + 1);
        }

        // Sections start on pages of their own, in order
        int lastPage = -1;
        for (const auto& heading : report->Headings()) {
            if (heading.level == 1 && lastPage >= 0)
                QVERIFY2(heading.page > lastPage, qPrintable(heading.text));
            QVERIFY(heading.page >= lastPage);
            lastPage = heading.page;
        }
        QCOMPARE(report->PageCount(), preview.pageCount());
        QVERIFY(lastPage < report->PageCount());
    }

    void shouldFillTheResultsOnceTheAnalysisHasRun()
    {
        // Given a preview shown before any analysis
        auto preview = MadeAsByQml();
        QVERIFY(!preview->hasResults());
        const int pagesBefore = preview->pageCount();
        QSignalSpy changed(preview.get(), &ReportPreview::reportChanged);

        // When the analysis runs
        QVERIFY(Analyse());

        // Then the report is made anew with the results
        QVERIFY(changed.wait(5000));
        QVERIFY(preview->hasResults());
        QVERIFY(preview->pageCount() >= pagesBefore);
        QVERIFY(preview->Report()->PlainText().contains("Summary"));
    }

    void shouldLeaveOutRowsPastTheLimit()
    {
        // A building of a few hundred members reports the first rows of its long tables only
        StructureModel()->Replace([](Model::Structure& structure) {
            Model::ModelGenerator::Building(structure, Model::BuildingOptions());
        });
        ReportPreview preview;
        preview.refresh();
        const auto rows = TableRowsByHeading(preview.Report()->Document());
        const int members = int(StructureModel()->Structure().Members().Size());
        QVERIFY(members > 101);
        QCOMPARE(rows.at(TableLabel(Model::ObjectKind::Member)), 100 + 1);
        QVERIFY(preview.Report()->PlainText().contains(QString("%1 more rows").arg(members - 100)));
    }

    void shouldExportEveryPageToPdf()
    {
        QVERIFY(Analyse());
        ReportPreview preview;
        preview.refresh();
        QSignalSpy exported(&preview, &ReportPreview::exported);
        QTemporaryDir folder;
        const QString path = folder.filePath("report.pdf");

        QVERIFY(preview.exportPdf(path));

        QCOMPARE(exported.count(), 1);
        QCOMPARE(preview.exportError(), QString());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray pdf = file.readAll();
        QVERIFY(pdf.startsWith("%PDF-"));
        // Every page object, not the page tree ("/Pages")
        const auto pages = QRegularExpression("/Type\\s*/Page\\b").globalMatch(QString::fromLatin1(pdf));
        int count = 0;
        for (auto match = pages; match.hasNext(); match.next())
            ++count;
        QCOMPARE(count, preview.pageCount());
        QVERIFY(preview.pageCount() > 1);
    }

    void shouldTellWhyAnExportFailed()
    {
        ReportPreview preview;
        preview.refresh();
        QSignalSpy errorChanged(&preview, &ReportPreview::exportErrorChanged);
        QSignalSpy exported(&preview, &ReportPreview::exported);
        QTemporaryDir folder;
        const QString unwritable = folder.filePath("no such folder/report.pdf");

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Report export: .*no such folder"));
        QVERIFY(!preview.exportPdf(unwritable));
        QVERIFY(preview.exportError().contains(unwritable));
        QCOMPARE(errorChanged.count(), 1);
        QCOMPARE(exported.count(), 0);

        // A later export that works clears the message; a file URL is read as its path
        QVERIFY(preview.exportPdf(QUrl::fromLocalFile(folder.filePath("report.pdf")).toString()));
        QVERIFY(QFile::exists(folder.filePath("report.pdf")));
        QCOMPARE(preview.exportError(), QString());
        QCOMPARE(errorChanged.count(), 2);
    }

    void shouldClampPageNavigation_data()
    {
        QTest::addColumn<QString>("operations");
        QTest::addColumn<QString>("expected");
        // Operations: n next, p previous, a number: set that page; "last" stands for the last page.
        QTest::newRow("starts on the first page") << ""
                                                  << "0";
        QTest::newRow("next") << "n"
                              << "1";
        QTest::newRow("previous on the first page") << "p"
                                                    << "0";
        QTest::newRow("next past the last page") << "last n n"
                                                 << "last";
        QTest::newRow("set past the end") << "999"
                                          << "last";
        QTest::newRow("set before the start") << "2 -5"
                                              << "0";
        QTest::newRow("back and forth") << "n n p"
                                        << "1";
    }

    void shouldClampPageNavigation()
    {
        QFETCH(QString, operations);
        QFETCH(QString, expected);
        ReportPreview preview;
        preview.refresh();
        const int last = preview.pageCount() - 1;
        QVERIFY(last >= 2);
        for (const QString& operation : operations.split(' ', Qt::SkipEmptyParts)) {
            if (operation == "n")
                preview.nextPage();
            else if (operation == "p")
                preview.previousPage();
            else
                preview.setCurrentPage(operation == "last" ? last : operation.toInt());
        }
        QCOMPARE(preview.currentPage(), expected == "last" ? last : expected.toInt());
        QCOMPARE(preview.pageText(), QString("Page %1 of %2").arg(preview.currentPage() + 1).arg(last + 1));
    }

    void shouldClampZoom_data()
    {
        QTest::addColumn<QString>("operations");
        QTest::addColumn<double>("expected");
        QTest::addColumn<bool>("fitting");
        const double pageWidth = ReportDocument::PageSize().width();
        // Operations: + zoom in, - zoom out, fit:W fit the width W, =Z set the zoom.
        QTest::newRow("in from 100 %") << "+" << 1.25 << false;
        QTest::newRow("out from 100 %") << "-" << 0.75 << false;
        QTest::newRow("in at the top") << "=4 +" << 4.0 << false;
        QTest::newRow("out at the bottom") << "=0.25 -" << 0.25 << false;
        QTest::newRow("set above the top") << "=10" << 4.0 << false;
        QTest::newRow("set below the bottom") << "=0.01" << 0.25 << false;
        QTest::newRow("between steps, in") << "=1.1 +" << 1.25 << false;
        QTest::newRow("between steps, out") << "=1.1 -" << 1.0 << false;
        QTest::newRow("fit the width") << QString("fit:%1").arg(pageWidth * 2, 0, 'g', 17) << 2.0 << true;
        QTest::newRow("fit a narrow width") << "fit:10" << 0.25 << true;
        QTest::newRow("zoom in ends fitting") << QString("fit:%1 +").arg(pageWidth * 0.9, 0, 'g', 17) << 1.0 << false;
    }

    void shouldClampZoom()
    {
        QFETCH(QString, operations);
        QFETCH(double, expected);
        QFETCH(bool, fitting);
        ReportPreview preview;
        preview.refresh();
        for (const QString& operation : operations.split(' ', Qt::SkipEmptyParts)) {
            if (operation == "+") {
                preview.zoomIn();
            } else if (operation == "-") {
                preview.zoomOut();
            } else if (operation.startsWith("fit:")) {
                preview.setAvailableWidth(operation.mid(4).toDouble());
                preview.setFitWidth(true);
            } else {
                preview.setZoom(operation.mid(1).toDouble());
            }
        }
        QCOMPARE(preview.zoom(), expected);
        QCOMPARE(preview.fitWidth(), fitting);
        QCOMPARE(preview.pageWidth(), ReportDocument::PageSize().width() * expected);
    }

    void shouldFollowTheWidthWhileFitting()
    {
        ReportPreview preview;
        preview.refresh();
        preview.setFitWidth(true);
        QSignalSpy zoomChanged(&preview, &ReportPreview::zoomChanged);
        const double pageWidth = ReportDocument::PageSize().width();

        preview.setAvailableWidth(pageWidth * 1.5);
        QCOMPARE(preview.zoom(), 1.5);
        preview.setAvailableWidth(pageWidth * 1.5);
        QCOMPARE(zoomChanged.count(), 1);
        preview.setZoom(std::nan(""));
        QVERIFY(preview.fitWidth());
    }

    void shouldServePagesAtTheZoomShown()
    {
        auto preview = std::make_unique<ReportPreview>();
        preview->refresh();
        preview->setZoom(0.5);
        preview->nextPage();
        ReportPageImageProvider provider;
        const QUrl source = preview->pageSource();
        QCOMPARE(source.scheme(), "image");
        QCOMPARE(source.host(), ReportPageImageProvider::c_providerId);
        const QString id = source.path().mid(1);

        QSize size;
        const QImage page = provider.requestImage(id, &size, QSize());
        QCOMPARE(page.size(), (ReportDocument::PageSize() * 0.5).toSize());
        QCOMPARE(size, page.size());
        QCOMPARE(page.pixel(2, 2), qRgb(255, 255, 255));

        // A page of a report that is gone is empty, and says so
        preview.reset();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no page image"));
        QVERIFY(provider.requestImage(id, &size, QSize()).isNull());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no page image"));
        QVERIFY(provider.requestImage("nonsense", &size, QSize()).isNull());
    }
};

QTEST_MAIN(tst_ReportPreview)
#include "tst_reportpreview.moc"
