#pragma once

#include "framework/EventConnection.h"
#include "graphic/DisplayOptions.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Graphic {
class GraphicsService;
class InteractiveViewport;
} // namespace Orvo::Graphic

namespace Orvo::Kernel::Analysis {
class AnalysisService;
}

// The demo's bar over the model view: view presets, framing, what the view shows, and the
// pointer's model coordinates with the view's scale beneath it. It reaches the engine's view
// through the graphics service by the view item's viewportId, as the host's bars do.
class ViewControls : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ViewControls)
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(bool extrudedSections READ extrudedSections WRITE setExtrudedSections NOTIFY displayChanged)
    Q_PROPERTY(bool loads READ loads WRITE setLoads NOTIFY displayChanged)
    Q_PROPERTY(bool deformedShape READ deformedShape WRITE setDeformedShape NOTIFY displayChanged)
    Q_PROPERTY(bool momentDiagram READ momentDiagram WRITE setMomentDiagram NOTIFY displayChanged)
    // Whether the analysis has results of the model as it is: the results toggles need them.
    Q_PROPERTY(bool resultsAvailable READ resultsAvailable NOTIFY resultsAvailableChanged)
    Q_PROPERTY(QString pointerText READ pointerText NOTIFY pointerTextChanged)
    Q_PROPERTY(QString scaleText READ scaleText NOTIFY scaleTextChanged)

public:
    enum Preset
    {
        Isometric,
        Top,
        Front,
        Side,
    };
    Q_ENUM(Preset)

    explicit ViewControls(QObject* parent = nullptr);
    ~ViewControls() override;

    int viewportId() const { return m_viewportId; }
    void setViewportId(int id);
    bool extrudedSections() const { return m_options.extrudedSections; }
    void setExtrudedSections(bool on);
    bool loads() const { return m_options.loads; }
    void setLoads(bool on);
    bool deformedShape() const { return m_options.deformedShape; }
    void setDeformedShape(bool on);
    bool momentDiagram() const { return m_options.diagram == Orvo::Graphic::ForceComponent::MomentY; }
    void setMomentDiagram(bool on);
    bool resultsAvailable() const;
    QString pointerText() const { return m_pointerText; }
    QString scaleText() const { return m_scaleText; }

    Q_INVOKABLE void showPreset(Preset preset);
    Q_INVOKABLE void fitAll();

signals:
    void viewportIdChanged();
    void displayChanged();
    void resultsAvailableChanged();
    void pointerTextChanged();
    void scaleTextChanged();

private:
    Orvo::Graphic::InteractiveViewport* View() const;
    void Apply(const Orvo::Graphic::DisplayOptions& options);
    void SetPointerText(const QString& text);
    void SetScaleText(double metresPerPixel);

    std::shared_ptr<Orvo::Graphic::GraphicsService> m_graphics;
    std::shared_ptr<Orvo::Kernel::Analysis::AnalysisService> m_analysis;
    int m_viewportId = -1;
    Orvo::Graphic::DisplayOptions m_options;
    QString m_pointerText;
    QString m_scaleText;
    Orvo::Kernel::Framework::EventConnection m_pointerConnection;
    Orvo::Kernel::Framework::EventConnection m_scaleConnection;
    Orvo::Kernel::Framework::EventConnection m_activeConnection;
};
