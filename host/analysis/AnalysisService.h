#pragma once

#include "FrameAnalysis.h"
#include "HostKitExport.h"
#include "framework/EventConnection.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <atomic>
#include <memory>
#include <vector>

class QThread;

namespace Orvo::Kernel::Framework {
class EventBus;
class IStringLoader;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::Kernel::Tables {
class TableDataCatalog;
}

namespace Orvo::Kernel::Results {
class ResultsDatabase;
class ResultsTableData;
} // namespace Orvo::Kernel::Results

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::Kernel::Analysis {

// The host's analysis: runs the frame analysis of the structural model on a thread of its own,
// with progress and cancellation, writes the results into a results database and shows them in the
// results workstation's tables. The user may go on editing meanwhile: the analysis works on a copy,
// and the results are marked out of date once the model changes. A host service; QML binds to its
// properties. Lives on the GUI thread.
class HOSTKIT_EXPORT AnalysisService : public QObject
{
    Q_OBJECT
    // Described for QML tools (the documents that bind to it); a service, never created in QML.
    QML_ANONYMOUS
    Q_PROPERTY(bool running READ running NOTIFY runningChanged)
    Q_PROPERTY(bool stopping READ stopping NOTIFY progressChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString stageText READ stageText NOTIFY progressChanged)
    Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)
    Q_PROPERTY(bool hasResults READ hasResults NOTIFY resultsChanged)
    Q_PROPERTY(bool resultsUpToDate READ resultsUpToDate NOTIFY resultsUpToDateChanged)
    Q_PROPERTY(int degreesOfFreedom READ degreesOfFreedom NOTIFY resultsChanged)
    Q_PROPERTY(QVariantList summary READ summary NOTIFY resultsChanged)
    Q_PROPERTY(QString modelDescription READ modelDescription NOTIFY modelChanged)

public:
    AnalysisService(std::shared_ptr<Framework::StructuralModel> model,
                    std::shared_ptr<Tables::TableDataCatalog> tables,
                    std::shared_ptr<Framework::EventBus> eventBus,
                    std::shared_ptr<const Framework::IStringLoader> strings,
                    std::shared_ptr<const UI::BasicComponents::DisplayUnits> units = nullptr,
                    QObject* parent = nullptr);
    ~AnalysisService() override;

    // Starts an analysis of the model as it is now; false while one runs.
    Q_INVOKABLE bool start();
    // Asks the running analysis to stop at its next step (the factorisation itself runs to its end).
    Q_INVOKABLE void cancel();

    bool running() const { return m_thread != nullptr; }
    // Asked to stop, and not yet at a step where it can.
    bool stopping() const;
    double progress() const { return m_progress; }
    QString stageText() const;
    QString statusText() const { return m_statusText; }
    bool hasResults() const { return m_database != nullptr; }
    bool resultsUpToDate() const { return m_upToDate; }
    int degreesOfFreedom() const;
    // One entry per load case and combination: name, largest displacement, sum of the support
    // reactions, largest bending moment, as texts in the user's language.
    QVariantList summary() const;
    // What the analysis would work on: the model's counts of objects.
    QString modelDescription() const;

    std::shared_ptr<Results::ResultsDatabase> Database() const { return m_database; }
    // The latest results and the structure they were computed for (a copy taken when the
    // analysis started); null before the first analysis that succeeded.
    std::shared_ptr<const AnalysisResults> Results() const { return m_results; }
    std::shared_ptr<const Model::Structure> AnalysedStructure() const { return m_analysedStructure; }
    const std::vector<std::shared_ptr<Results::ResultsTableData>>& Tables() const { return m_tables; }

signals:
    void runningChanged();
    void progressChanged();
    void statusTextChanged();
    void resultsChanged();
    void resultsUpToDateChanged();
    void modelChanged();
    void finished(bool succeeded);

private:
    struct Job;
    void Report(AnalysisStage stage, double fraction);
    void OnThreadFinished();
    void ShowResults(std::shared_ptr<Results::ResultsDatabase> database, const std::shared_ptr<Job>& job);
    void SetUpToDate(bool upToDate);
    void OnModelChanged();
    void Shutdown();
    QString Text(const QString& id, const QStringList& arguments = {}) const;
    QString SetName(int position) const;

    std::shared_ptr<Framework::StructuralModel> m_model;
    std::shared_ptr<Tables::TableDataCatalog> m_catalog;
    std::shared_ptr<Framework::EventBus> m_eventBus;
    std::shared_ptr<const Framework::IStringLoader> m_strings;
    std::shared_ptr<const UI::BasicComponents::DisplayUnits> m_units;
    std::vector<std::shared_ptr<Results::ResultsTableData>> m_tables;
    std::shared_ptr<Results::ResultsDatabase> m_database;
    std::shared_ptr<const AnalysisResults> m_results;
    std::shared_ptr<const Model::Structure> m_analysedStructure;
    QTemporaryDir m_directory;
    int m_runs = 0;
    QThread* m_thread = nullptr;
    std::shared_ptr<Job> m_job;
    AnalysisStage m_stage = AnalysisStage::Preparing;
    double m_progress = 0.0;
    QString m_statusText;
    bool m_upToDate = false;
    bool m_changedWhileRunning = false;
    std::vector<Framework::EventConnection> m_connections;
};

} // namespace Orvo::Kernel::Analysis
