#pragma once

#include <QDateTime>
#include <QString>
#include <QTextDocument>
#include <memory>

namespace Orvo::Graphic {
class GraphicsService;
class InteractiveViewport;
} // namespace Orvo::Graphic
namespace Orvo::Kernel::Analysis {
class AnalysisService;
}
namespace Orvo::Kernel::Tables {
class TableDataCatalog;
}

namespace Orvo::UI::UIComponents {

// Writes the report of the structural model and its results as a text document: a title page
// with what the report is about and a picture of the model, then the model's input tables, its
// loads and, once an analysis has run, a summary of the results per load case and combination
// with the results tables. Every text is in the user's language; the tables are the host's own,
// so the report reads as the table panels do.
class ReportBuilder
{
public:
    // What the report is made of; any of them may be missing, and the report then says less.
    struct Sources
    {
        const Kernel::Tables::TableDataCatalog* tables = nullptr;
        const Kernel::Analysis::AnalysisService* analysis = nullptr;
        Graphic::GraphicsService* graphics = nullptr;
        // The view whose direction and display the picture follows; null for the default.
        const Graphic::InteractiveViewport* view = nullptr;
    };

    struct Options
    {
        QString title;
        QString projectName; // left out when empty
        QDateTime created;
        int maximumRows = 100; // per table
    };

    static std::unique_ptr<QTextDocument> Build(const Sources& sources, const Options& options);
};

} // namespace Orvo::UI::UIComponents
