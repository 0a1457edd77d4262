#pragma once

#include <QImage>
#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QTextDocument>
#include <memory>
#include <mutex>
#include <vector>

class QPainter;

namespace Orvo::UI::UIComponents {

// A report laid out on A4 pages: the text document, paginated at a fixed resolution so that the
// pages break in the same places on every screen, with a footer on each page (the report's title
// and "page n of m"). The preview and the PDF draw the same pages with the same code, so what the
// user previews is what the file holds. Once made it does not change; drawing is serialised, so
// that pages may be drawn from any one thread at a time (the preview's image provider may be
// called off the GUI thread).
class ReportDocument
{
public:
    // Document units: pixels at 96 dots per inch, the resolution the layout works in.
    static constexpr qreal c_unitsPerInch = 96.0;
    static constexpr qreal c_millimetresPerInch = 25.4;
    static constexpr qreal Millimetres(qreal millimetres)
    {
        return millimetres / c_millimetresPerInch * c_unitsPerInch;
    }

    struct Heading
    {
        int level = 0;
        QString text;
        int page = 0; // from 0
    };

    // Takes the document and lays it out on pages; footerTitle is written at the foot of each.
    ReportDocument(std::unique_ptr<QTextDocument> document, QString footerTitle);
    ~ReportDocument();
    ReportDocument(const ReportDocument&) = delete;
    ReportDocument& operator=(const ReportDocument&) = delete;

    int PageCount() const { return m_pageCount; }
    // The size of a page in document units.
    static QSizeF PageSize();
    static QMarginsF PageMargins();
    const std::vector<Heading>& Headings() const { return m_headings; }
    // The text of the whole document, for a search or a test.
    QString PlainText() const;
    const QTextDocument& Document() const { return *m_document; }

    // The page drawn at scale (1: 96 dots per inch) on white; a null image for a page that does
    // not exist or a scale that makes no image.
    QImage RenderPage(int page, qreal scale) const;
    // Writes every page to a PDF file. False with the reason when the file cannot be written.
    bool WritePdf(const QString& path, QString* error) const;

    // The largest page image RenderPage makes, in pixels along its longer side.
    static constexpr int c_maximumImageSide = 8192;

private:
    // Draws one page in document units, its top left corner at the painter's origin.
    void PaintPage(QPainter& painter, int page) const;
    void CollectHeadings();

    std::unique_ptr<QImage> m_layoutDevice;
    std::unique_ptr<QTextDocument> m_document;
    QString m_footerTitle;
    int m_pageCount = 0;
    std::vector<Heading> m_headings;
    mutable std::mutex m_paintMutex;
};

} // namespace Orvo::UI::UIComponents
