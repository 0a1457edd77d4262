#include "CoordinatesSubModel.h"

#include "basiccomponents/DisplayUnits.h"
#include "basiccomponents/NumberHelper.h"
#include "events/DisplayUnitsChanged.h"
#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "graphic/ViewportEvents.h"

namespace Orvo::UI::UIComponents {

using BasicComponents::DisplayUnits;

namespace {

// A user places points to the millimetre: metres with three decimals, and as many in other units.
const QString c_storedUnit = QStringLiteral("m");
constexpr int c_storedDecimals = 3;

} // namespace

CoordinatesSubModel::CoordinatesSubModel(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_units = catalog->Get<DisplayUnits>();
    const auto eventbus = catalog->Get<Kernel::Framework::EventBus>();
    if (!eventbus)
        return;
    m_pointerConnection = eventbus->Subscribe<Graphic::PointerPositionChangedEvent>(
        [this](const Graphic::PointerPositionChangedEvent& event) {
            if (event.viewportId == m_viewportId)
                SetPointer(event.valid, event.position.x, event.position.y, event.position.z);
        });
    m_unitsConnection = eventbus->Subscribe<Events::DisplayUnitsChanged>(
        [this](const Events::DisplayUnitsChanged&) { emit coordinatesChanged(); });
}

CoordinatesSubModel::~CoordinatesSubModel() = default;

void CoordinatesSubModel::setViewportId(int id)
{
    if (m_viewportId == id)
        return;
    m_viewportId = id;
    // What another view announced is not where the pointer is in this one.
    SetPointer(false, 0.0, 0.0, 0.0);
    emit viewportIdChanged();
}

QString CoordinatesSubModel::unit() const
{
    return m_units ? m_units->GetUnit(DisplayUnits::Quantity::Length) : c_storedUnit;
}

void CoordinatesSubModel::SetPointer(bool valid, double x, double y, double z)
{
    if (!valid)
        x = y = z = 0.0;
    if (valid == m_valid && x == m_x && y == m_y && z == m_z)
        return;
    m_valid = valid;
    m_x = x;
    m_y = y;
    m_z = z;
    emit coordinatesChanged();
}

QString CoordinatesSubModel::Text(double metres) const
{
    if (!m_valid)
        return QString();
    BasicComponents::NumberHelper helper;
    if (!m_units) {
        helper.setDecimals(c_storedDecimals);
        return helper.toEditValue(metres);
    }
    const auto shown = m_units->ForStoredUnit(c_storedUnit, c_storedDecimals);
    helper.setDecimals(shown.decimals);
    return helper.toEditValue(shown.ToShown(metres));
}

} // namespace Orvo::UI::UIComponents
