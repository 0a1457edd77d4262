#pragma once

#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "qtextensions/UIComponent.h"

#include <QTimer>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Graphic {
class GraphicsService;
}
namespace Orvo::Kernel::Analysis {
class AnalysisService;
}
namespace Orvo::Kernel::Tables {
class TableDataCatalog;
}

namespace Orvo::UI::UIComponents {

class ReportDocument;

// The native half of the report preview: makes the report of the structural model and its
// results, shows it a page at a time at a zoom the user chooses, and exports it to PDF. The
// report follows the model and the analysis: a change makes it anew while the preview is
// visible, or when it is next shown. Pages are served to an Image by ReportPageImageProvider
// (pageSource), drawn at the zoom and the screen's pixel ratio.
class ReportPreview : public Orvo::UI::QtExtensions::UIComponent, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ReportPreview_Cpp)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString projectName READ projectName WRITE setProjectName NOTIFY projectNameChanged)
    // The model view whose direction and display the report's picture follows; -1 for none.
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY reportChanged)
    // From 0; -1 while the report has no pages.
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY currentPageChanged)
    Q_PROPERTY(QString pageText READ pageText NOTIFY currentPageChanged)
    Q_PROPERTY(bool hasResults READ hasResults NOTIFY reportChanged)
    // The report's headings: { text, level, page } each, for an outline that jumps to them.
    Q_PROPERTY(QVariantList headings READ headings NOTIFY reportChanged)
    // 1 is the page at its printed size on a screen of 96 dots per inch.
    Q_PROPERTY(qreal zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    Q_PROPERTY(QString zoomText READ zoomText NOTIFY zoomChanged)
    // While set, the zoom follows availableWidth so that a page's width fills it.
    Q_PROPERTY(bool fitWidth READ fitWidth WRITE setFitWidth NOTIFY zoomChanged)
    Q_PROPERTY(qreal availableWidth READ availableWidth WRITE setAvailableWidth NOTIFY availableWidthChanged)
    Q_PROPERTY(QUrl pageSource READ pageSource NOTIFY pageImageChanged)
    // The page's size on screen, in the item's (logical) pixels.
    Q_PROPERTY(qreal pageWidth READ pageWidth NOTIFY pageImageChanged)
    Q_PROPERTY(qreal pageHeight READ pageHeight NOTIFY pageImageChanged)
    // Why the last export failed, in the user's language; empty after one that worked.
    Q_PROPERTY(QString exportError READ exportError NOTIFY exportErrorChanged)

public:
    static constexpr qreal c_minimumZoom = 0.25;
    static constexpr qreal c_maximumZoom = 4.0;
    // The steps of zoom in and zoom out.
    static constexpr qreal c_zoomSteps[] = { 0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0 };
    // A burst of model changes (a table edit of many cells) makes one new report.
    static constexpr int c_rebuildDelayMs = 150;

    explicit ReportPreview(QQuickItem* parent = nullptr);
    ~ReportPreview() override;

    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QString projectName() const { return m_projectName; }
    void setProjectName(const QString& name);
    int viewportId() const { return m_viewportId; }
    void setViewportId(int id);
    int pageCount() const;
    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page);
    QString pageText() const;
    bool hasResults() const { return m_hasResults; }
    QVariantList headings() const;
    qreal zoom() const { return m_zoom; }
    void setZoom(qreal zoom);
    QString zoomText() const;
    bool fitWidth() const { return m_fitWidth; }
    void setFitWidth(bool fit);
    qreal availableWidth() const { return m_availableWidth; }
    void setAvailableWidth(qreal width);
    QUrl pageSource() const { return m_pageSource; }
    qreal pageWidth() const;
    qreal pageHeight() const;
    QString exportError() const { return m_exportError; }

    // Makes the report anew from the model as it is now.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void nextPage();
    Q_INVOKABLE void previousPage();
    // The next zoom step up or down from the current zoom; ends fitting the width.
    Q_INVOKABLE void zoomIn();
    Q_INVOKABLE void zoomOut();
    // Writes the report to a PDF file; false, with exportError set and logged, when it cannot.
    Q_INVOKABLE bool exportPdf(const QString& filePath);
    // Where an export goes unless the user says otherwise: the user's documents folder.
    Q_INVOKABLE QString suggestedFilePath() const;

    // The report shown; null before the first one.
    std::shared_ptr<const ReportDocument> Report() const { return m_report; }

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    void titleChanged();
    void projectNameChanged();
    void viewportIdChanged();
    void reportChanged();
    void currentPageChanged();
    void zoomChanged();
    void availableWidthChanged();
    void pageImageChanged();
    void exportErrorChanged();
    // A PDF was written.
    void exported(const QString& filePath);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void Rebuild();
    void MarkStale();
    void ApplyFitWidth();
    void UpdatePageSource();
    void SetExportError(const QString& error);
    bool ExportPdf(const QString& filePath);
    qreal DevicePixelRatio() const;

    std::shared_ptr<Graphic::GraphicsService> m_graphics;
    std::shared_ptr<Kernel::Analysis::AnalysisService> m_analysis;
    std::shared_ptr<Kernel::Tables::TableDataCatalog> m_tables;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::vector<Kernel::Framework::EventConnection> m_connections;
    std::shared_ptr<const ReportDocument> m_report;
    QString m_reportKey;
    QTimer m_rebuildTimer;
    bool m_stale = true;
    QString m_title;
    QString m_projectName;
    int m_viewportId = -1;
    int m_currentPage = -1;
    bool m_hasResults = false;
    qreal m_zoom = 1.0;
    bool m_fitWidth = false;
    qreal m_availableWidth = 0.0;
    QUrl m_pageSource;
    QString m_exportError;
};

} // namespace Orvo::UI::UIComponents
