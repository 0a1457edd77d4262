#include "ReportPreview.h"

#include "ReportBuilder.h"
#include "ReportDocument.h"
#include "ReportLogging.h"
#include "ReportPageImageProvider.h"
#include "analysis/AnalysisService.h"
#include "events/DisplayUnitsChanged.h"
#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "graphic/GraphicsService.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModelEvents.h"
#include "tables/TableDataCatalog.h"

#include <QDir>
#include <QLocale>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

namespace {

// Zoom steps are compared with room for the rounding of a fitted zoom.
constexpr qreal c_zoomTolerance = 1e-6;

} // namespace

ReportPreview::ReportPreview(QQuickItem* parent)
    : UIComponent(parent)
    , m_title(GetText(QStringLiteral("UI_REPORT_TITLE")))
{
    m_rebuildTimer.setSingleShot(true);
    m_rebuildTimer.setInterval(c_rebuildDelayMs);
    connect(&m_rebuildTimer, &QTimer::timeout, this, &ReportPreview::Rebuild);
    if (const auto catalog = ServiceCatalog::Global()) {
        m_graphics = catalog->Get<Graphic::GraphicsService>();
        m_analysis = catalog->Get<Kernel::Analysis::AnalysisService>();
        m_tables = catalog->Get<Kernel::Tables::TableDataCatalog>();
        catalog->Inject(*this);
    }
    if (m_analysis) {
        using Kernel::Analysis::AnalysisService;
        connect(m_analysis.get(), &AnalysisService::resultsChanged, this, &ReportPreview::MarkStale);
        connect(m_analysis.get(), &AnalysisService::resultsUpToDateChanged, this, &ReportPreview::MarkStale);
    }
}

ReportPreview::~ReportPreview()
{
    if (m_analysis)
        m_analysis->disconnect(this);
    if (!m_reportKey.isEmpty())
        ReportPageImageProvider::Withdraw(m_reportKey);
}

void ReportPreview::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    m_connections.clear();
    if (!m_eventbus)
        return;
    m_connections.push_back(
        m_eventbus->Subscribe<StructureChangedEvent>([this](const auto&) { MarkStale(); }));
    m_connections.push_back(
        m_eventbus->Subscribe<ObjectValuesChangedEvent>([this](const auto&) { MarkStale(); }));
    // Numbers and units are written as the user chose them.
    m_connections.push_back(
        m_eventbus->Subscribe<Events::NumberFormatChanged>([this](const auto&) { MarkStale(); }));
    m_connections.push_back(
        m_eventbus->Subscribe<Events::DisplayUnitsChanged>([this](const auto&) { MarkStale(); }));
}

std::shared_ptr<EventBus> ReportPreview::GetEventbus() const
{
    return m_eventbus;
}

void ReportPreview::componentComplete()
{
    UIComponent::componentComplete();
    // One provider per engine serves the pages of every preview in it.
    if (QQmlEngine* engine = qmlEngine(this);
        engine && !engine->imageProvider(ReportPageImageProvider::c_providerId))
        engine->addImageProvider(ReportPageImageProvider::c_providerId, new ReportPageImageProvider());
    if (isVisible())
        Rebuild();
}

void ReportPreview::itemChange(ItemChange change, const ItemChangeData& data)
{
    UIComponent::itemChange(change, data);
    // A report that fell behind while hidden is made anew as soon as it is shown.
    if (change == ItemVisibleHasChanged && data.boolValue && m_stale && isComponentComplete())
        Rebuild();
    if (change == ItemDevicePixelRatioHasChanged)
        UpdatePageSource();
}

void ReportPreview::MarkStale()
{
    m_stale = true;
    if (isVisible() && isComponentComplete())
        m_rebuildTimer.start();
}

void ReportPreview::refresh()
{
    Rebuild();
}

void ReportPreview::Rebuild()
{
    m_rebuildTimer.stop();
    m_stale = false;
    std::shared_ptr<const ReportDocument> report = CatchAtReportBoundary(
        "Report", std::shared_ptr<const ReportDocument>(), [this]() -> std::shared_ptr<const ReportDocument> {
            ReportBuilder::Sources sources;
            sources.tables = m_tables.get();
            sources.analysis = m_analysis.get();
            sources.graphics = m_graphics.get();
            sources.view
                = m_graphics && m_viewportId != -1 ? m_graphics->FindViewport(m_viewportId) : nullptr;
            ReportBuilder::Options options;
            options.title = m_title;
            options.projectName = m_projectName;
            options.created = QDateTime::currentDateTime();
            return std::make_shared<const ReportDocument>(ReportBuilder::Build(sources, options), m_title);
        });
    const QString oldKey = m_reportKey;
    m_report = std::move(report);
    m_reportKey = m_report ? ReportPageImageProvider::Publish(m_report) : QString();
    m_hasResults = m_analysis && m_analysis->hasResults();
    // The reader stays on the page they were reading, as far as the new report has it.
    const int count = pageCount();
    m_currentPage = count == 0 ? -1 : std::clamp(m_currentPage, 0, count - 1);
    UpdatePageSource();
    if (!oldKey.isEmpty())
        ReportPageImageProvider::Withdraw(oldKey);
    emit reportChanged();
    emit currentPageChanged();
}

void ReportPreview::setTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    MarkStale();
    emit titleChanged();
}

void ReportPreview::setProjectName(const QString& name)
{
    if (m_projectName == name)
        return;
    m_projectName = name;
    MarkStale();
    emit projectNameChanged();
}

void ReportPreview::setViewportId(int id)
{
    if (m_viewportId == id)
        return;
    m_viewportId = id;
    MarkStale();
    emit viewportIdChanged();
}

int ReportPreview::pageCount() const
{
    return m_report ? m_report->PageCount() : 0;
}

void ReportPreview::setCurrentPage(int page)
{
    const int count = pageCount();
    page = count == 0 ? -1 : std::clamp(page, 0, count - 1);
    if (page == m_currentPage)
        return;
    m_currentPage = page;
    UpdatePageSource();
    emit currentPageChanged();
}

QString ReportPreview::pageText() const
{
    if (m_currentPage < 0)
        return QString();
    return GetText(QStringLiteral("UI_REPORT_PAGE_OF")).arg(m_currentPage + 1).arg(pageCount());
}

QVariantList ReportPreview::headings() const
{
    QVariantList list;
    if (!m_report)
        return list;
    for (const ReportDocument::Heading& heading : m_report->Headings())
        list.append(QVariantMap { { QStringLiteral("text"), heading.text },
                                  { QStringLiteral("level"), heading.level },
                                  { QStringLiteral("page"), heading.page } });
    return list;
}

void ReportPreview::nextPage()
{
    setCurrentPage(m_currentPage + 1);
}

void ReportPreview::previousPage()
{
    setCurrentPage(std::max(0, m_currentPage - 1));
}

void ReportPreview::setZoom(qreal zoom)
{
    if (!std::isfinite(zoom))
        return;
    zoom = std::clamp(zoom, c_minimumZoom, c_maximumZoom);
    // A zoom of the user's own ends fitting the width.
    const bool wasFitting = m_fitWidth;
    m_fitWidth = false;
    if (zoom == m_zoom && !wasFitting)
        return;
    m_zoom = zoom;
    UpdatePageSource();
    emit zoomChanged();
}

QString ReportPreview::zoomText() const
{
    return GetText(QStringLiteral("UI_REPORT_ZOOM_PERCENT")).arg(QLocale().toString(qRound(m_zoom * 100.0)));
}

void ReportPreview::zoomIn()
{
    const auto* step = std::find_if(std::begin(c_zoomSteps), std::end(c_zoomSteps),
                                    [this](qreal step) { return step > m_zoom + c_zoomTolerance; });
    setZoom(step == std::end(c_zoomSteps) ? c_maximumZoom : *step);
}

void ReportPreview::zoomOut()
{
    qreal lower = c_minimumZoom;
    for (qreal step : c_zoomSteps) {
        if (step < m_zoom - c_zoomTolerance)
            lower = step;
    }
    setZoom(lower);
}

void ReportPreview::setFitWidth(bool fit)
{
    if (m_fitWidth == fit)
        return;
    m_fitWidth = fit;
    ApplyFitWidth();
    UpdatePageSource();
    emit zoomChanged();
}

void ReportPreview::setAvailableWidth(qreal width)
{
    if (!std::isfinite(width) || width < 0.0)
        width = 0.0;
    if (width == m_availableWidth)
        return;
    m_availableWidth = width;
    emit availableWidthChanged();
    if (m_fitWidth) {
        const qreal before = m_zoom;
        ApplyFitWidth();
        if (m_zoom != before) {
            UpdatePageSource();
            emit zoomChanged();
        }
    }
}

void ReportPreview::ApplyFitWidth()
{
    if (!m_fitWidth || m_availableWidth <= 0.0)
        return;
    m_zoom = std::clamp(m_availableWidth / ReportDocument::PageSize().width(), c_minimumZoom, c_maximumZoom);
}

qreal ReportPreview::pageWidth() const
{
    return m_currentPage < 0 ? 0.0 : ReportDocument::PageSize().width() * m_zoom;
}

qreal ReportPreview::pageHeight() const
{
    return m_currentPage < 0 ? 0.0 : ReportDocument::PageSize().height() * m_zoom;
}

qreal ReportPreview::DevicePixelRatio() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}

void ReportPreview::UpdatePageSource()
{
    const QUrl source = m_currentPage < 0 || m_reportKey.isEmpty()
        ? QUrl()
        : ReportPageImageProvider::PageUrl(m_reportKey, m_currentPage, m_zoom * DevicePixelRatio());
    if (source == m_pageSource)
        return;
    m_pageSource = source;
    emit pageImageChanged();
}

QString ReportPreview::suggestedFilePath() const
{
    // The documents folder is not made for the user: where there is none, the home folder.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(!folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath())
        .filePath(GetText(QStringLiteral("UI_REPORT_FILE_NAME")) + QStringLiteral(".pdf"));
}

bool ReportPreview::exportPdf(const QString& filePath)
{
    return CatchAtReportBoundary("Report export", false, [&] { return ExportPdf(filePath); });
}

bool ReportPreview::ExportPdf(const QString& filePath)
{
    // A path may come as a file URL (a file dialog's answer).
    const QString path
        = filePath.startsWith(QLatin1String("file:")) ? QUrl(filePath).toLocalFile() : filePath;
    if (m_stale || !m_report)
        Rebuild();
    QString error;
    if (!m_report) {
        error = GetText(QStringLiteral("UI_REPORT_ERROR_EMPTY"));
    } else if (m_report->WritePdf(path, &error)) {
        SetExportError(QString());
        emit exported(path);
        return true;
    }
    LogReportWarning("Report export", error);
    SetExportError(error);
    return false;
}

void ReportPreview::SetExportError(const QString& error)
{
    if (m_exportError == error)
        return;
    m_exportError = error;
    emit exportErrorChanged();
}

} // namespace Orvo::UI::UIComponents
