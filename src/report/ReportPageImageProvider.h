#pragma once

#include <QQuickImageProvider>
#include <QString>
#include <QUrl>
#include <memory>

namespace Orvo::UI::UIComponents {

class ReportDocument;

// Serves the pages of the reports being previewed to Image items, as
// "image://<c_providerId>/<report>/<page>/<scale>". A preview publishes each report it makes
// and withdraws it when it makes another or goes; the provider keeps only weak references, so
// an image asked for after that is simply empty. Pages are drawn when asked for, at the scale
// asked for, and the report serialises its drawing: the engine may call from its loader thread.
class ReportPageImageProvider : public QQuickImageProvider
{
public:
    static inline const QString c_providerId = QStringLiteral("orvoreport");

    ReportPageImageProvider();

    // A report's key, for its page URLs; unique in the process.
    static QString Publish(const std::shared_ptr<const ReportDocument>& report);
    static void Withdraw(const QString& key);
    static QUrl PageUrl(const QString& key, int page, qreal scale);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace Orvo::UI::UIComponents
