#pragma once

#include "CoordinatesSubModel.h"
#include "MasterEntitySubDataModel.h"
#include "ScaleSubDataModel.h"
#include "SnappingSubDataModel.h"
#include "UnitsSubDataModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Analysis {
class AnalysisService;
}

namespace Orvo::UI::UIComponents {

// Everything the status bar shows: its sub-models, the view they follow, and the progress of the
// background work (the analysis).
class StatusBarDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(StatusbarData)
    // The view whose pointer and scale are shown.
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::UnitsSubDataModel* units READ units CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::ScaleSubDataModel* scale READ scale CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::SnappingSubDataModel* snapping READ snapping CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::CoordinatesSubModel* coordinates READ coordinates CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MasterEntitySubDataModel* masterEntity READ masterEntity CONSTANT)
    Q_PROPERTY(bool busy READ busy NOTIFY progressChanged)
    // Within [0, 1] while busy.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)

public:
    explicit StatusBarDataModel(QObject* parent = nullptr);
    ~StatusBarDataModel() override;

    int viewportId() const { return m_coordinates->viewportId(); }
    void setViewportId(int id);
    UnitsSubDataModel* units() const { return m_units; }
    ScaleSubDataModel* scale() const { return m_scale; }
    SnappingSubDataModel* snapping() const { return m_snapping; }
    CoordinatesSubModel* coordinates() const { return m_coordinates; }
    MasterEntitySubDataModel* masterEntity() const { return m_masterEntity; }
    bool busy() const;
    double progress() const;
    QString progressText() const;

    // Stops the background work shown (the analysis).
    Q_INVOKABLE void cancel();

signals:
    void viewportIdChanged();
    void progressChanged();

private:
    UnitsSubDataModel* m_units;
    ScaleSubDataModel* m_scale;
    SnappingSubDataModel* m_snapping;
    CoordinatesSubModel* m_coordinates;
    MasterEntitySubDataModel* m_masterEntity;
    std::shared_ptr<Kernel::Analysis::AnalysisService> m_analysis;
};

} // namespace Orvo::UI::UIComponents
