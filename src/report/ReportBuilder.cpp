#include "ReportBuilder.h"

#include "ReportDocument.h"
#include "ReportTableWriter.h"
#include "ReportViewPicture.h"
#include "analysis/AnalysisService.h"
#include "plugin/QtComponentsText.h"
#include "results/ResultsTableData.h"
#include "tables/TableDataCatalog.h"

#include <QLocale>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

namespace Orvo::UI::UIComponents {

namespace {

constexpr qreal c_bodyPoints = 9.0;
constexpr qreal c_titlePoints = 22.0;
constexpr qreal c_sectionPoints = 15.0;
constexpr qreal c_subsectionPoints = 11.0;
const QColor c_headingColor { 0x1f, 0x3a, 0x5f };
const QColor c_noteColor { 0x5f, 0x6b, 0x78 };
// The picture of the model: the page's width, two thirds as high, drawn at twice the pixels for
// print.
constexpr qreal c_pictureAspect = 2.0 / 3.0;
constexpr qreal c_picturePixelsPerUnit = 2.0;
const QUrl c_pictureUrl { QStringLiteral("report:view.png") };

QString Text(const char* id)
{
    return GetText(QString::fromLatin1(id));
}

// Appends blocks of the report's few forms at the end of the document.
class Writer
{
public:
    explicit Writer(QTextDocument& document)
        : m_document(document)
        , m_cursor(&document)
    {
        m_cursor.movePosition(QTextCursor::End);
    }

    QTextCursor& Cursor() { return m_cursor; }

    // Level 1 starts a section on a page of its own (the title starts the first page).
    void Heading(const QString& text, int level, qreal points, bool newPage)
    {
        QTextBlockFormat block;
        block.setHeadingLevel(level);
        block.setTopMargin(level == 1 ? 0.0 : 14.0);
        block.setBottomMargin(6.0);
        if (newPage)
            block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCharFormat character;
        character.setFontPointSize(points);
        character.setFontWeight(QFont::Bold);
        character.setForeground(c_headingColor);
        NewBlock(block, character);
        m_cursor.insertText(text, character);
    }

    void Paragraph(const QString& text, bool note = false)
    {
        QTextBlockFormat block;
        block.setBottomMargin(4.0);
        QTextCharFormat character;
        character.setFontPointSize(c_bodyPoints);
        if (note) {
            character.setFontItalic(true);
            character.setForeground(c_noteColor);
        }
        NewBlock(block, character);
        m_cursor.insertText(text, character);
    }

    // Label and value pairs without borders: the title page's facts.
    void Facts(const std::vector<std::pair<QString, QString>>& facts)
    {
        if (facts.empty())
            return;
        NewBlock(QTextBlockFormat(), QTextCharFormat());
        QTextTableFormat format;
        format.setBorder(0.0);
        format.setCellPadding(3.0);
        format.setCellSpacing(0.0);
        QTextTable* table = m_cursor.insertTable(int(facts.size()), 2, format);
        QTextCharFormat label;
        label.setFontPointSize(c_bodyPoints + 1.0);
        label.setForeground(c_noteColor);
        QTextCharFormat value = label;
        value.setForeground(Qt::black);
        value.setFontWeight(QFont::DemiBold);
        for (std::size_t row = 0; row < facts.size(); ++row) {
            table->cellAt(int(row), 0).firstCursorPosition().insertText(facts[row].first, label);
            table->cellAt(int(row), 1).firstCursorPosition().insertText(facts[row].second, value);
        }
        m_cursor.movePosition(QTextCursor::End);
    }

    void Picture(const QImage& image, const QSizeF& size)
    {
        m_document.addResource(QTextDocument::ImageResource, c_pictureUrl, image);
        QTextBlockFormat block;
        block.setAlignment(Qt::AlignHCenter);
        block.setTopMargin(6.0);
        NewBlock(block, QTextCharFormat());
        QTextImageFormat format;
        format.setName(c_pictureUrl.toString());
        format.setWidth(size.width());
        format.setHeight(size.height());
        m_cursor.insertImage(format);
    }

private:
    // An empty block at the end (the document's first, the one after a table) is taken as it is.
    void NewBlock(const QTextBlockFormat& block, const QTextCharFormat& character)
    {
        if (m_cursor.block().length() <= 1 && !m_cursor.currentTable()) {
            m_cursor.setBlockFormat(block);
            m_cursor.setCharFormat(character);
        } else {
            m_cursor.insertBlock(block, character);
        }
    }

    QTextDocument& m_document;
    QTextCursor m_cursor;
};

void WriteHostTables(Writer& writer, const Kernel::Tables::TableWorkstation& workstation, int maximumRows)
{
    writer.Heading(QString::fromStdWString(workstation.label), 1, c_sectionPoints, true);
    for (const auto& table : workstation.tables) {
        if (!table)
            continue;
        writer.Heading(QString::fromStdWString(table->GetLabel()), 2, c_subsectionPoints, false);
        if (table->GetRowCount() <= 0) {
            writer.Paragraph(Text("UI_REPORT_TABLE_EMPTY"), true);
            continue;
        }
        ReportTableWriter::Write(writer.Cursor(), *table, maximumRows);
    }
}

void WriteResults(Writer& writer, const Kernel::Analysis::AnalysisService* analysis, int maximumRows)
{
    writer.Heading(Text("UI_REPORT_RESULTS"), 1, c_sectionPoints, true);
    if (!analysis || !analysis->hasResults()) {
        writer.Paragraph(Text("UI_REPORT_NO_RESULTS"), true);
        return;
    }
    if (!analysis->resultsUpToDate())
        writer.Paragraph(Text("UI_REPORT_RESULTS_OUT_OF_DATE"), true);

    writer.Heading(Text("UI_REPORT_SUMMARY"), 2, c_subsectionPoints, false);
    std::vector<QStringList> rows;
    for (const QVariant& entry : analysis->summary()) {
        const QVariantMap set = entry.toMap();
        rows.push_back({ set.value(QStringLiteral("name")).toString(),
                         set.value(QStringLiteral("displacement")).toString(),
                         set.value(QStringLiteral("reactions")).toString(),
                         set.value(QStringLiteral("moment")).toString() });
    }
    ReportTableWriter::WriteTexts(writer.Cursor(),
                                  { Text("UI_REPORT_SUMMARY_SET"), Text("UI_REPORT_SUMMARY_DISPLACEMENT"),
                                    Text("UI_REPORT_SUMMARY_REACTIONS"), Text("UI_REPORT_SUMMARY_MOMENT") },
                                  rows, { false, true, true, true });

    for (const auto& table : analysis->Tables()) {
        // Forces along the members are for the diagrams and the tables; on paper the ends tell.
        if (!table || table->Table() == Kernel::Results::ResultsTable::MemberStationForces)
            continue;
        writer.Heading(QString::fromStdWString(table->GetLabel()), 2, c_subsectionPoints, false);
        ReportTableWriter::Write(writer.Cursor(), *table, maximumRows);
    }
}

} // namespace

std::unique_ptr<QTextDocument> ReportBuilder::Build(const Sources& sources, const Options& options)
{
    auto document = std::make_unique<QTextDocument>();
    QFont font = document->defaultFont();
    font.setPointSizeF(c_bodyPoints);
    document->setDefaultFont(font);
    document->setUndoRedoEnabled(false);
    Writer writer(*document);

    writer.Heading(options.title, 1, c_titlePoints, false);
    std::vector<std::pair<QString, QString>> facts;
    if (!options.projectName.isEmpty())
        facts.push_back({ Text("UI_REPORT_PROJECT"), options.projectName });
    if (sources.analysis)
        facts.push_back({ Text("UI_REPORT_MODEL"), sources.analysis->modelDescription() });
    facts.push_back({ Text("UI_REPORT_CREATED"), QLocale().toString(options.created, QLocale::LongFormat) });
    const bool hasResults = sources.analysis && sources.analysis->hasResults();
    facts.push_back({ Text("UI_REPORT_ANALYSIS"),
                      hasResults ? GetText(QStringLiteral("UI_REPORT_ANALYSED"))
                                       .arg(QLocale().toString(sources.analysis->degreesOfFreedom()))
                                 : Text("UI_REPORT_NOT_ANALYSED") });
    writer.Facts(facts);

    if (sources.graphics) {
        const QMarginsF margins = ReportDocument::PageMargins();
        const qreal width = ReportDocument::PageSize().width() - margins.left() - margins.right();
        const QSizeF size(width, width * c_pictureAspect);
        const QImage picture = ReportViewPicture::Render(*sources.graphics, sources.view,
                                                         (size * c_picturePixelsPerUnit).toSize());
        if (!picture.isNull()) {
            writer.Heading(Text("UI_REPORT_VIEW"), 2, c_subsectionPoints, false);
            writer.Picture(picture, size);
        }
    }

    if (sources.tables) {
        for (const std::wstring& id : { Kernel::Tables::TableDataCatalog::c_modelWorkstation,
                                        Kernel::Tables::TableDataCatalog::c_loadsWorkstation }) {
            if (const auto* workstation = sources.tables->FindWorkstation(id))
                WriteHostTables(writer, *workstation, options.maximumRows);
        }
    }
    WriteResults(writer, sources.analysis, options.maximumRows);
    return document;
}

} // namespace Orvo::UI::UIComponents
