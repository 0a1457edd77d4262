#include "ScaleSubDataModel.h"

#include "basiccomponents/DisplayUnits.h"
#include "basiccomponents/NumberHelper.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"
#include "graphic/ViewportEvents.h"
#include "plugin/QtComponentsText.h"

#include <cmath>

namespace Orvo::UI::UIComponents {

using BasicComponents::DisplayUnits;

namespace {

// Enough to tell 0.5 mm from 0.6 mm per pixel when zoomed in on a joint.
constexpr int c_pixelDecimals = 4;

} // namespace

ScaleSubDataModel::ScaleSubDataModel(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_graphics = catalog->Get<Graphic::GraphicsService>();
    m_units = catalog->Get<DisplayUnits>();
    const auto eventbus = catalog->Get<Kernel::Framework::EventBus>();
    if (!eventbus)
        return;
    m_scaleConnection = eventbus->Subscribe<Graphic::ViewScaleChangedEvent>(
        [this](const Graphic::ViewScaleChangedEvent& event) {
            if (event.viewportId == m_viewportId)
                SetMetresPerPixel(event.metresPerPixel);
        });
    m_unitsConnection = eventbus->Subscribe<Events::DisplayUnitsChanged>(
        [this](const Events::DisplayUnitsChanged&) { emit scaleChanged(); });
}

ScaleSubDataModel::~ScaleSubDataModel() = default;

void ScaleSubDataModel::setViewportId(int id)
{
    if (m_viewportId == id)
        return;
    m_viewportId = id;
    // The scale is announced only when it changes: a view already shown is asked.
    const Graphic::InteractiveViewport* view
        = m_graphics && id != -1 ? m_graphics->FindViewport(id) : nullptr;
    SetMetresPerPixel(view ? view->GetViewScale() : 0.0);
    emit viewportIdChanged();
}

void ScaleSubDataModel::SetMetresPerPixel(double metresPerPixel)
{
    if (!std::isfinite(metresPerPixel) || metresPerPixel < 0.0)
        metresPerPixel = 0.0;
    if (metresPerPixel == m_metresPerPixel)
        return;
    m_metresPerPixel = metresPerPixel;
    emit scaleChanged();
}

QString ScaleSubDataModel::scaleText() const
{
    if (m_metresPerPixel <= 0.0)
        return GetText(QStringLiteral("UI_STATUSBAR_NO_SCALE"));
    const double ratio = m_metresPerPixel / c_metresPerScreenPixel;
    // Drawing scales are written with whole numbers; a close-up is 1:1 at most in this form.
    return GetText(QStringLiteral("UI_STATUSBAR_SCALE"))
        .arg(QLocale().toString(std::max(1.0, std::round(ratio)), 'f', 0));
}

QString ScaleSubDataModel::pixelText() const
{
    if (m_metresPerPixel <= 0.0)
        return QString();
    BasicComponents::NumberHelper helper;
    helper.setDecimals(c_pixelDecimals);
    const QString unit = m_units ? m_units->GetUnit(DisplayUnits::Quantity::Length) : QStringLiteral("m");
    const double length
        = m_units ? m_units->FromSI(DisplayUnits::Quantity::Length, m_metresPerPixel) : m_metresPerPixel;
    return GetText(QStringLiteral("UI_STATUSBAR_PIXEL")).arg(helper.toEditValue(length), unit);
}

} // namespace Orvo::UI::UIComponents
