#include "AnalysisService.h"

#include "AnalysisEvents.h"
#include "AnalysisLogging.h"
#include "basiccomponents/NumberHelper.h"
#include "framework/EventBus.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"
#include "results/ResultsDatabase.h"
#include "results/ResultsTableData.h"
#include "results/ResultsWriter.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableDataEvents.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QVariantMap>
#include <cmath>

namespace Orvo::Kernel::Analysis {

namespace {

// The share of the whole run at which each stage starts: factorising the stiffness matrix takes
// most of the time of a big model, writing the results most of the rest.
constexpr double c_stageStarts[] = { 0.0, 0.02, 0.12, 0.70, 0.75, 1.0 };

double Overall(AnalysisStage stage, double fraction)
{
    const auto index = std::size_t(stage);
    return c_stageStarts[index]
        + (c_stageStarts[index + 1] - c_stageStarts[index]) * std::clamp(fraction, 0.0, 1.0);
}

QString Number(double value, int decimals)
{
    // Round-off shows no sign: "-0.0" would read as a result of its own.
    const double rounded = std::round(value * std::pow(10.0, decimals)) == 0.0 ? 0.0 : value;
    return UI::BasicComponents::NumberHelper().locale().toString(rounded, 'f', decimals);
}

} // namespace

struct AnalysisService::Job
{
    // Shared with the design check once the results are shown.
    std::shared_ptr<Model::Structure> structure;
    QString path;
    std::atomic<bool> cancel { false };
    int reported = -1; // the last progress sent, in thousandths
    // Written on the analysis's thread, read once it has ended.
    bool succeeded = false;
    bool cancelled = false;
    Model::ModelMessage why;
    QString writeError;
    std::int32_t degreesOfFreedom = 0;
    double seconds = 0.0;
    std::shared_ptr<const AnalysisResults> results;
};

AnalysisService::AnalysisService(std::shared_ptr<Framework::StructuralModel> model,
                                 std::shared_ptr<Tables::TableDataCatalog> tables,
                                 std::shared_ptr<Framework::EventBus> eventBus,
                                 std::shared_ptr<const Framework::IStringLoader> strings,
                                 std::shared_ptr<const UI::BasicComponents::DisplayUnits> units,
                                 QObject* parent)
    : QObject(parent)
    , m_model(std::move(model))
    , m_catalog(std::move(tables))
    , m_eventBus(std::move(eventBus))
    , m_strings(std::move(strings))
    , m_units(std::move(units))
{
    Tables::TableWorkstation workstation {
        Tables::TableDataCatalog::c_resultsWorkstation,
        Text(QStringLiteral("UI_TABLES_WORKSTATION_RESULTS")).toStdWString(),
        L"workstation-results",
        {}
    };
    for (Results::ResultsTable table : Results::c_allResultsTables) {
        m_tables.push_back(std::make_shared<Results::ResultsTableData>(table, m_strings, m_units));
        workstation.tables.push_back(m_tables.back());
    }
    if (m_catalog)
        m_catalog->SetWorkstation(std::move(workstation));
    // The host's service catalog may outlive the application, Qt's SQL driver does not.
    if (QCoreApplication::instance())
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
                &AnalysisService::Shutdown);
    if (m_eventBus) {
        m_connections.push_back(m_eventBus->Subscribe<Framework::ObjectValuesChangedEvent>(
            [this](const Framework::ObjectValuesChangedEvent&) { OnModelChanged(); }));
        m_connections.push_back(m_eventBus->Subscribe<Framework::StructureChangedEvent>(
            [this](const Framework::StructureChangedEvent&) { OnModelChanged(); }));
    }
}

AnalysisService::~AnalysisService()
{
    Shutdown();
}

void AnalysisService::Shutdown()
{
    if (m_thread) {
        m_job->cancel = true;
        m_thread->wait();
        delete m_thread;
        m_thread = nullptr;
        m_job.reset();
    }
    for (const auto& table : m_tables)
        table->SetDatabase(nullptr);
    m_database.reset();
    m_results.reset();
    m_analysedStructure.reset();
}

QString AnalysisService::Text(const QString& id, const QStringList& arguments) const
{
    std::vector<Model::ModelMessage::Argument> values(arguments.begin(), arguments.end());
    return Model::ModelMessage(id, values).ToText(m_strings.get());
}

bool AnalysisService::start()
{
    if (m_thread)
        return false;
    m_job = std::make_shared<Job>();
    m_job->structure = std::make_shared<Model::Structure>(m_model->Structure());
    m_job->path = m_directory.filePath(QStringLiteral("results-%1.sqlite").arg(++m_runs));
    m_changedWhileRunning = false;
    const auto job = m_job;
    m_thread = QThread::create([this, job]() {
        QElapsedTimer timer;
        timer.start();
        const auto progress = [this, job](AnalysisStage stage, double fraction) {
            const int thousandths = int(Overall(stage, fraction) * 1000);
            if (thousandths != job->reported) {
                job->reported = thousandths;
                QMetaObject::invokeMethod(
                    this, [this, stage, fraction]() { Report(stage, fraction); }, Qt::QueuedConnection);
            }
            return !job->cancel.load();
        };
        RunGuarded("Frame analysis", [&]() {
            const AnalysisOutcome outcome = FrameAnalysis::Run(*job->structure, progress);
            job->cancelled = outcome.cancelled;
            job->why = outcome.why;
            if (!outcome.succeeded)
                return;
            job->degreesOfFreedom = outcome.results->DegreesOfFreedom();
            job->results = outcome.results;
            job->succeeded = Results::ResultsWriter::Write(
                *outcome.results, job->path,
                [&progress](double fraction) { return progress(AnalysisStage::WritingResults, fraction); },
                job->writeError);
            job->cancelled = !job->succeeded && job->writeError.isEmpty();
        });
        job->seconds = double(timer.elapsed()) / 1000.0;
    });
    connect(m_thread, &QThread::finished, this, &AnalysisService::OnThreadFinished);
    m_stage = AnalysisStage::Preparing;
    m_progress = 0.0;
    m_thread->start();
    emit runningChanged();
    emit progressChanged();
    return true;
}

void AnalysisService::cancel()
{
    if (!m_job || m_job->cancel)
        return;
    m_job->cancel = true;
    emit progressChanged();
}

bool AnalysisService::stopping() const
{
    return m_job && m_job->cancel;
}

void AnalysisService::Report(AnalysisStage stage, double fraction)
{
    if (!m_thread)
        return;
    m_stage = stage;
    m_progress = Overall(stage, fraction);
    emit progressChanged();
}

QString AnalysisService::stageText() const
{
    if (!m_thread)
        return {};
    if (stopping())
        return Text(QStringLiteral("UI_ANALYSIS_STOPPING"));
    static const char* ids[]
        = { "UI_ANALYSIS_STAGE_PREPARING", "UI_ANALYSIS_STAGE_ASSEMBLING", "UI_ANALYSIS_STAGE_FACTORISING",
            "UI_ANALYSIS_STAGE_SOLVING", "UI_ANALYSIS_STAGE_WRITING" };
    return Text(QString::fromLatin1(ids[std::size_t(m_stage)]));
}

void AnalysisService::OnThreadFinished()
{
    const std::shared_ptr<Job> job = std::move(m_job);
    m_thread->deleteLater();
    m_thread = nullptr;
    bool succeeded = job->succeeded;
    if (succeeded) {
        auto database = std::make_shared<Results::ResultsDatabase>(job->path);
        succeeded = database->IsOpen();
        if (succeeded)
            ShowResults(std::move(database), job);
    }
    if (succeeded)
        m_statusText = Text(QStringLiteral("UI_ANALYSIS_DONE"),
                            { QString::number(job->degreesOfFreedom), Number(job->seconds, 1) });
    else if (job->cancelled)
        m_statusText = Text(QStringLiteral("UI_ANALYSIS_STOPPED"));
    else if (!job->why.IsEmpty())
        m_statusText = m_model->Text(job->why);
    else
        m_statusText = Text(QStringLiteral("UI_ANALYSIS_FAILED"), { job->writeError });
    if (!succeeded && !job->cancelled)
        qCInfo(AnalysisCategory(), "%s", qPrintable(m_statusText));
    m_progress = succeeded ? 1.0 : 0.0;
    emit runningChanged();
    emit progressChanged();
    emit statusTextChanged();
    if (m_eventBus)
        m_eventBus->Post(AnalysisFinishedEvent { succeeded, job->cancelled, m_statusText,
                                                 job->degreesOfFreedom, job->seconds,
                                                 succeeded ? 0 : job->why.Subject() });
    emit finished(succeeded);
}

void AnalysisService::ShowResults(std::shared_ptr<Results::ResultsDatabase> database,
                                  const std::shared_ptr<Job>& job)
{
    m_results = job->results;
    m_analysedStructure = job->structure;
    const QString previous = m_database ? m_database->Path() : QString();
    Tables::TableDataChangedEvent changed { {}, true };
    for (const auto& table : m_tables) {
        table->SetDatabase(database);
        changed.tableIds.push_back(table->GetId());
    }
    m_database = std::move(database);
    if (!previous.isEmpty())
        QFile::remove(previous);
    SetUpToDate(!m_changedWhileRunning);
    if (m_eventBus)
        m_eventBus->Post(std::move(changed));
    emit resultsChanged();
}

void AnalysisService::OnModelChanged()
{
    m_changedWhileRunning = m_thread != nullptr;
    SetUpToDate(false);
    emit modelChanged();
}

QString AnalysisService::modelDescription() const
{
    const Model::Structure& structure = m_model->Structure();
    return Text(QStringLiteral("UI_ANALYSIS_MODEL"),
                { QString::number(structure.Nodes().Size()), QString::number(structure.Members().Size()),
                  QString::number(structure.LoadCases().Size()),
                  QString::number(structure.Combinations().Size()) });
}

void AnalysisService::SetUpToDate(bool upToDate)
{
    if (m_upToDate == upToDate)
        return;
    m_upToDate = upToDate;
    emit resultsUpToDateChanged();
}

int AnalysisService::degreesOfFreedom() const
{
    return m_database ? m_database->DegreesOfFreedom() : 0;
}

QString AnalysisService::SetName(int position) const
{
    const auto& set = m_database->Sets()[std::size_t(position)];
    return Text(set.combination ? QStringLiteral("UI_RESULTS_SET_COMBINATION")
                                : QStringLiteral("UI_RESULTS_SET_LOAD_CASE"),
                { QString::number(set.number), set.name });
}

QVariantList AnalysisService::summary() const
{
    QVariantList rows;
    if (!m_database)
        return rows;
    for (const Results::ResultSetSummary& set : m_database->Sets()) {
        const auto text = [this](const char* id, std::vector<Model::ModelMessage::Argument> arguments) {
            return Model::ModelMessage(QString::fromLatin1(id), std::move(arguments)).ToText(m_strings.get());
        };
        rows.append(QVariantMap {
            { QStringLiteral("name"), SetName(set.position) },
            { QStringLiteral("displacement"),
              text("UI_ANALYSIS_SUMMARY_DISPLACEMENT",
                   { Number(set.maxDisplacement, 2),
                     Model::ObjectRef { Model::ObjectKind::Node, set.maxDisplacementNode } }) },
            { QStringLiteral("reactions"),
              text("UI_ANALYSIS_SUMMARY_REACTIONS",
                   { Number(set.reactions[0], 1), Number(set.reactions[1], 1),
                     Number(set.reactions[2], 1) }) },
            { QStringLiteral("moment"),
              text("UI_ANALYSIS_SUMMARY_MOMENT",
                   { Number(set.maxMoment, 1),
                     Model::ObjectRef { Model::ObjectKind::Member, set.maxMomentMember } }) },
        });
    }
    return rows;
}

} // namespace Orvo::Kernel::Analysis
