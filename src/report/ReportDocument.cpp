#include "ReportDocument.h"

#include "plugin/QtComponentsText.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextFrame>
#include <cmath>

namespace Orvo::UI::UIComponents {

namespace {

// A4 with room at the foot for the footer.
constexpr qreal c_pageWidthMm = 210.0;
constexpr qreal c_pageHeightMm = 297.0;
constexpr qreal c_sideMarginMm = 18.0;
constexpr qreal c_topMarginMm = 18.0;
constexpr qreal c_bottomMarginMm = 22.0;
// The footer's line and text, measured up from the page's lower edge.
constexpr qreal c_footerLineMm = 15.0;
constexpr qreal c_footerTextMm = 9.0;
constexpr qreal c_footerFontPoints = 7.5;
const QColor c_footerColor { 0x5f, 0x6b, 0x78 };
// PDF pages are drawn at this resolution; text stays vector, the picture of the view keeps its
// own pixels.
constexpr int c_pdfResolution = 300;
constexpr double c_dotsPerMeterAt96Dpi = ReportDocument::c_unitsPerInch / 0.0254;

} // namespace

ReportDocument::ReportDocument(std::unique_ptr<QTextDocument> document, QString footerTitle)
    : m_layoutDevice(std::make_unique<QImage>(1, 1, QImage::Format_RGB32))
    , m_document(std::move(document))
    , m_footerTitle(std::move(footerTitle))
{
    // Laid out for a device of a fixed resolution, not the screen's: the same report breaks its
    // pages in the same places wherever it is made, and matches the PDF.
    m_layoutDevice->setDotsPerMeterX(int(std::lround(c_dotsPerMeterAt96Dpi)));
    m_layoutDevice->setDotsPerMeterY(int(std::lround(c_dotsPerMeterAt96Dpi)));
    m_document->documentLayout()->setPaintDevice(m_layoutDevice.get());
    m_document->setPageSize(PageSize());
    QTextFrameFormat root = m_document->rootFrame()->frameFormat();
    const QMarginsF margins = PageMargins();
    root.setLeftMargin(margins.left());
    root.setRightMargin(margins.right());
    root.setTopMargin(margins.top());
    root.setBottomMargin(margins.bottom());
    m_document->rootFrame()->setFrameFormat(root);
    m_pageCount = m_document->pageCount();
    CollectHeadings();
}

ReportDocument::~ReportDocument() = default;

QSizeF ReportDocument::PageSize()
{
    return { Millimetres(c_pageWidthMm), Millimetres(c_pageHeightMm) };
}

QMarginsF ReportDocument::PageMargins()
{
    return { Millimetres(c_sideMarginMm), Millimetres(c_topMarginMm), Millimetres(c_sideMarginMm),
             Millimetres(c_bottomMarginMm) };
}

QString ReportDocument::PlainText() const
{
    return m_document->toPlainText();
}

void ReportDocument::CollectHeadings()
{
    const qreal pageHeight = PageSize().height();
    QAbstractTextDocumentLayout* layout = m_document->documentLayout();
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level <= 0)
            continue;
        const int page = int(layout->blockBoundingRect(block).top() / pageHeight);
        m_headings.push_back({ level, block.text(), std::clamp(page, 0, std::max(0, m_pageCount - 1)) });
    }
}

void ReportDocument::PaintPage(QPainter& painter, int page) const
{
    const QSizeF size = PageSize();
    const QRectF onDocument(0.0, page * size.height(), size.width(), size.height());
    painter.save();
    painter.setClipRect(QRectF(QPointF(0.0, 0.0), size));
    painter.translate(0.0, -onDocument.top());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = onDocument;
    context.palette.setColor(QPalette::Text, Qt::black);
    m_document->documentLayout()->draw(&painter, context);
    painter.restore();

    const QMarginsF margins = PageMargins();
    const qreal lineY = size.height() - Millimetres(c_footerLineMm);
    const qreal textY = size.height() - Millimetres(c_footerTextMm);
    painter.save();
    painter.setPen(QPen(c_footerColor, 0.5));
    painter.drawLine(QPointF(margins.left(), lineY), QPointF(size.width() - margins.right(), lineY));
    QFont font = m_document->defaultFont();
    font.setPointSizeF(c_footerFontPoints);
    painter.setFont(font);
    const QRectF footer(margins.left(), lineY, size.width() - margins.left() - margins.right(),
                        textY - lineY);
    painter.drawText(footer, Qt::AlignLeft | Qt::AlignBottom, m_footerTitle);
    painter.drawText(footer, Qt::AlignRight | Qt::AlignBottom,
                     GetText(QStringLiteral("UI_REPORT_PAGE_OF")).arg(page + 1).arg(m_pageCount));
    painter.restore();
}

QImage ReportDocument::RenderPage(int page, qreal scale) const
{
    if (page < 0 || page >= m_pageCount || !std::isfinite(scale) || scale <= 0.0)
        return {};
    const QSize pixels = (PageSize() * scale).toSize();
    if (pixels.isEmpty() || std::max(pixels.width(), pixels.height()) > c_maximumImageSide)
        return {};
    QImage image(pixels, QImage::Format_RGB32);
    image.setDotsPerMeterX(int(std::lround(c_dotsPerMeterAt96Dpi)));
    image.setDotsPerMeterY(int(std::lround(c_dotsPerMeterAt96Dpi)));
    image.fill(Qt::white);
    std::lock_guard<std::mutex> lock(m_paintMutex);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    PaintPage(painter, page);
    return image;
}

bool ReportDocument::WritePdf(const QString& path, QString* error) const
{
    const auto fail = [error](const QString& reason) {
        if (error)
            *error = reason;
        return false;
    };
    if (m_pageCount <= 0)
        return fail(GetText(QStringLiteral("UI_REPORT_ERROR_EMPTY")));
    QFile file(path);
    if (path.trimmed().isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fail(GetText(QStringLiteral("UI_REPORT_ERROR_CANNOT_WRITE")).arg(path, file.errorString()));

    QPdfWriter writer(&file);
    writer.setResolution(c_pdfResolution);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    writer.setTitle(m_footerTitle);
    writer.setCreator(QStringLiteral("QtComponents"));
    std::lock_guard<std::mutex> lock(m_paintMutex);
    QPainter painter;
    if (!painter.begin(&writer))
        return fail(GetText(QStringLiteral("UI_REPORT_ERROR_CANNOT_WRITE")).arg(path, file.errorString()));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    // The pages are laid out at 96 dots per inch; the writer draws at its own resolution.
    const qreal scale = qreal(writer.logicalDpiX()) / c_unitsPerInch;
    for (int page = 0; page < m_pageCount; ++page) {
        if (page > 0)
            writer.newPage();
        painter.save();
        painter.scale(scale, scale);
        PaintPage(painter, page);
        painter.restore();
    }
    painter.end();
    file.close();
    if (file.error() != QFileDevice::NoError)
        return fail(GetText(QStringLiteral("UI_REPORT_ERROR_CANNOT_WRITE")).arg(path, file.errorString()));
    return true;
}

} // namespace Orvo::UI::UIComponents
