#include "ViewControls.h"

#include "analysis/AnalysisService.h"
#include "basiccomponents/NumberHelper.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "graphic/FrameComposer.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"
#include "graphic/ViewportEvents.h"
#include "model/ActiveEntities.h"
#include "plugin/QtComponentsText.h"

using namespace Orvo;

namespace {

// Millimetres are the smallest step a user places a node by.
constexpr int c_coordinateDecimals = 3;
constexpr int c_scaleDecimals = 4;

QString Number(double value, int decimals)
{
    UI::BasicComponents::NumberHelper helper;
    helper.setDecimals(decimals);
    return helper.toEditValue(value);
}

} // namespace

ViewControls::ViewControls(QObject* parent)
    : QObject(parent)
{
    auto catalog = Kernel::Framework::ServiceCatalog::Global();
    m_graphics = catalog->Get<Graphic::GraphicsService>();
    m_analysis = catalog->Get<Kernel::Analysis::AnalysisService>();
    if (m_analysis) {
        connect(m_analysis.get(), &Kernel::Analysis::AnalysisService::resultsChanged, this,
                &ViewControls::resultsAvailableChanged);
        connect(m_analysis.get(), &Kernel::Analysis::AnalysisService::resultsUpToDateChanged, this,
                &ViewControls::resultsAvailableChanged);
    }
    // The workspace opens on the structure alone; loads are a click away.
    m_options.loads = false;
    m_pointerText = UI::UIComponents::GetText(QStringLiteral("UI_APP_POINTER_NONE"));
    if (auto bus = catalog->Get<Kernel::Framework::EventBus>()) {
        m_pointerConnection = bus->Subscribe<Graphic::PointerPositionChangedEvent>(
            [this](const Graphic::PointerPositionChangedEvent& event) {
                if (event.viewportId != m_viewportId)
                    return;
                SetPointerText(event.valid
                                   ? UI::UIComponents::GetText(QStringLiteral("UI_APP_POINTER"))
                                         .arg(Number(event.position.x, c_coordinateDecimals),
                                              Number(event.position.y, c_coordinateDecimals),
                                              Number(event.position.z, c_coordinateDecimals))
                                   : UI::UIComponents::GetText(QStringLiteral("UI_APP_POINTER_NONE")));
            });
        // The view shows the loads of the load case new loads go to.
        m_activeConnection = bus->Subscribe<Kernel::Model::ActiveEntitiesChangedEvent>(
            [this](const Kernel::Model::ActiveEntitiesChangedEvent&) {
                const auto active
                    = Kernel::Framework::ServiceCatalog::Global()->Get<Kernel::Model::ActiveEntities>();
                if (!active)
                    return;
                // The view bar may have changed what the view shows since: start from the view.
                Graphic::DisplayOptions options = View() ? View()->GetDisplayOptions() : m_options;
                options.loadCase = active->GetLoadCase();
                Apply(options);
            });
        m_scaleConnection = bus->Subscribe<Graphic::ViewScaleChangedEvent>(
            [this](const Graphic::ViewScaleChangedEvent& event) {
                if (event.viewportId == m_viewportId)
                    SetScaleText(event.metresPerPixel);
            });
    }
}

ViewControls::~ViewControls() = default;

void ViewControls::setViewportId(int id)
{
    if (m_viewportId == id)
        return;
    m_viewportId = id;
    // A view that comes (back) takes the choices made before it.
    if (Graphic::InteractiveViewport* view = View()) {
        view->SetDisplayOptions(m_options);
        SetScaleText(view->GetViewScale());
    }
    emit viewportIdChanged();
}

void ViewControls::setExtrudedSections(bool on)
{
    Graphic::DisplayOptions options = m_options;
    options.extrudedSections = on;
    Apply(options);
}

void ViewControls::setLoads(bool on)
{
    Graphic::DisplayOptions options = m_options;
    options.loads = on;
    Apply(options);
}

void ViewControls::setDeformedShape(bool on)
{
    Graphic::DisplayOptions options = m_options;
    options.deformedShape = on;
    Apply(options);
}

void ViewControls::setMomentDiagram(bool on)
{
    Graphic::DisplayOptions options = m_options;
    options.diagram = on ? Graphic::ForceComponent::MomentY : Graphic::ForceComponent::None;
    Apply(options);
}

bool ViewControls::resultsAvailable() const
{
    return m_analysis && m_analysis->hasResults() && m_analysis->resultsUpToDate();
}

void ViewControls::showPreset(Preset preset)
{
    static const Graphic::ViewPreset presets[] = { Graphic::ViewPreset::Isometric, Graphic::ViewPreset::Top,
                                                   Graphic::ViewPreset::Front, Graphic::ViewPreset::Right };
    if (Graphic::InteractiveViewport* view = View()) {
        view->SetViewPreset(presets[preset]);
        view->FitAll();
    }
}

void ViewControls::fitAll()
{
    if (Graphic::InteractiveViewport* view = View())
        view->FitAll();
}

Graphic::InteractiveViewport* ViewControls::View() const
{
    return m_graphics && m_viewportId != -1 ? m_graphics->FindViewport(m_viewportId) : nullptr;
}

void ViewControls::Apply(const Graphic::DisplayOptions& options)
{
    Graphic::DisplayOptions applied = options;
    // Results and loads of the same case: the one whose loads the view shows.
    if (m_graphics) {
        const auto loadCase
            = Graphic::FrameComposer::ShownLoadCase(m_graphics->GetScene().Scene(), options.loadCase);
        applied.resultCase = Kernel::Model::MakeObjectId(Kernel::Model::ObjectKind::LoadCase, loadCase);
    }
    if (applied == m_options)
        return;
    m_options = applied;
    if (Graphic::InteractiveViewport* view = View())
        view->SetDisplayOptions(m_options);
    emit displayChanged();
}

void ViewControls::SetPointerText(const QString& text)
{
    if (m_pointerText == text)
        return;
    m_pointerText = text;
    emit pointerTextChanged();
}

void ViewControls::SetScaleText(double metresPerPixel)
{
    const QString text = UI::UIComponents::GetText(QStringLiteral("UI_APP_VIEW_SCALE"))
                             .arg(Number(metresPerPixel, c_scaleDecimals));
    if (m_scaleText == text)
        return;
    m_scaleText = text;
    emit scaleTextChanged();
}
