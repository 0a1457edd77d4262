#pragma once

#include "DesignCheck.h"
#include "HostKitExport.h"
#include "model/ModelMessage.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <optional>

namespace Orvo::Kernel::Framework {
class EventBus;
class IStringLoader;
} // namespace Orvo::Kernel::Framework

namespace Orvo::Kernel::Analysis {

class AnalysisService;

// The host's design step: checks every member against the latest analysis results (DesignCheck)
// and keeps the outcome until the results change, when it is out of date. Each check is
// announced with a DesignCheckedEvent. A host service; lives on the GUI thread.
class HOSTKIT_EXPORT DesignService : public QObject
{
    Q_OBJECT
    // Described for QML tools; a service, never created in QML.
    QML_ANONYMOUS
    Q_PROPERTY(bool hasOutcome READ hasOutcome NOTIFY outcomeChanged)
    // Checked against the results of the model as it is now.
    Q_PROPERTY(bool upToDate READ upToDate NOTIFY upToDateChanged)
    // Up-to-date results exist to check.
    Q_PROPERTY(bool canRun READ canRun NOTIFY canRunChanged)
    Q_PROPERTY(bool passes READ passes NOTIFY outcomeChanged)
    Q_PROPERTY(double maxUtilisation READ maxUtilisation NOTIFY outcomeChanged)
    Q_PROPERTY(QString statusText READ statusText NOTIFY outcomeChanged)

public:
    DesignService(std::shared_ptr<AnalysisService> analysis, std::shared_ptr<Framework::EventBus> eventBus,
                  std::shared_ptr<const Framework::IStringLoader> strings, QObject* parent = nullptr);
    ~DesignService() override;

    // Checks the members against the current results; false when there are none, or they are
    // out of date (the check would describe a model that no longer exists).
    Q_INVOKABLE bool run();

    bool hasOutcome() const { return m_outcome.has_value(); }
    bool upToDate() const { return m_upToDate; }
    bool canRun() const { return m_canRun; }
    bool passes() const { return m_outcome && m_outcome->Passes(); }
    double maxUtilisation() const { return m_outcome ? m_outcome->maxUtilisation : 0.0; }
    QString statusText() const { return m_statusText; }
    const std::optional<DesignOutcome>& Outcome() const { return m_outcome; }

signals:
    void outcomeChanged();
    void upToDateChanged();
    void canRunChanged();

private:
    // Whether the outcome still describes the results, and whether there are results to check.
    void UpdateStates();
    QString Text(const QString& id, const std::vector<Model::ModelMessage::Argument>& arguments) const;

    std::shared_ptr<AnalysisService> m_analysis;
    std::shared_ptr<Framework::EventBus> m_eventBus;
    std::shared_ptr<const Framework::IStringLoader> m_strings;
    std::optional<DesignOutcome> m_outcome;
    // The results the outcome was computed from: newer results make it out of date.
    std::shared_ptr<const AnalysisResults> m_checked;
    bool m_upToDate = false;
    bool m_canRun = false;
    QString m_statusText;
};

} // namespace Orvo::Kernel::Analysis
