#include "ReportPageImageProvider.h"

#include "ReportDocument.h"
#include "ReportLogging.h"

#include <QStringList>
#include <map>
#include <mutex>

namespace Orvo::UI::UIComponents {

namespace {

struct Published
{
    std::mutex mutex;
    std::map<QString, std::weak_ptr<const ReportDocument>> reports;
    quint64 nextKey = 1;
};

Published& Reports()
{
    static Published published;
    return published;
}

} // namespace

ReportPageImageProvider::ReportPageImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{ }

QString ReportPageImageProvider::Publish(const std::shared_ptr<const ReportDocument>& report)
{
    Published& published = Reports();
    std::lock_guard<std::mutex> lock(published.mutex);
    const QString key = QStringLiteral("r%1").arg(published.nextKey++);
    published.reports[key] = report;
    return key;
}

void ReportPageImageProvider::Withdraw(const QString& key)
{
    Published& published = Reports();
    std::lock_guard<std::mutex> lock(published.mutex);
    published.reports.erase(key);
}

QUrl ReportPageImageProvider::PageUrl(const QString& key, int page, qreal scale)
{
    return QUrl(QStringLiteral("image://%1/%2/%3/%4").arg(c_providerId, key).arg(page).arg(scale, 0, 'g', 6));
}

QImage ReportPageImageProvider::requestImage(const QString& id, QSize* size, const QSize&)
{
    const QStringList parts = id.split(QLatin1Char('/'));
    bool pageOk = false;
    bool scaleOk = false;
    const int page = parts.size() == 3 ? parts[1].toInt(&pageOk) : -1;
    const qreal scale = parts.size() == 3 ? parts[2].toDouble(&scaleOk) : 0.0;
    std::shared_ptr<const ReportDocument> report;
    if (pageOk && scaleOk) {
        Published& published = Reports();
        std::lock_guard<std::mutex> lock(published.mutex);
        const auto found = published.reports.find(parts[0]);
        if (found != published.reports.end())
            report = found->second.lock();
    }
    QImage image;
    if (report)
        image = report->RenderPage(page, scale);
    if (image.isNull())
        LogReportWarning("Report page", QStringLiteral("no page image for \"%1\"").arg(id));
    if (size)
        *size = image.size();
    return image;
}

} // namespace Orvo::UI::UIComponents
