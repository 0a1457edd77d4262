#include "UnitsSubDataModel.h"

#include "StatusLogging.h"
#include "basiccomponents/DisplayUnits.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

using BasicComponents::DisplayUnits;

UnitsSubDataModel::UnitsSubDataModel(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_units = catalog->Get<DisplayUnits>();
    if (const auto eventbus = catalog->Get<Kernel::Framework::EventBus>())
        m_unitsConnection = eventbus->Subscribe<Events::DisplayUnitsChanged>(
            [this](const Events::DisplayUnitsChanged&) { emit unitsChanged(); });
}

UnitsSubDataModel::~UnitsSubDataModel() = default;

QVariantList UnitsSubDataModel::quantities() const
{
    QVariantList entries;
    if (!m_units)
        return entries;
    for (DisplayUnits::Quantity quantity : DisplayUnits::c_quantities) {
        entries.push_back(QVariantMap { { QStringLiteral("quantity"), int(quantity) },
                                        { QStringLiteral("name"), GetText(DisplayUnits::NameId(quantity)) },
                                        { QStringLiteral("unit"), m_units->GetUnit(quantity) },
                                        { QStringLiteral("choices"), DisplayUnits::Choices(quantity) } });
    }
    return entries;
}

QString UnitsSubDataModel::lengthUnit() const
{
    return m_units ? m_units->GetUnit(DisplayUnits::Quantity::Length)
                   : DisplayUnits::DefaultUnit(DisplayUnits::Quantity::Length);
}

QString UnitsSubDataModel::summary() const
{
    QStringList units;
    for (DisplayUnits::Quantity quantity : DisplayUnits::c_quantities)
        units << (m_units ? m_units->GetUnit(quantity) : DisplayUnits::DefaultUnit(quantity));
    return units.join(QStringLiteral(" \u00B7 "));
}

bool UnitsSubDataModel::setUnit(int quantity, const QString& unit)
{
    if (quantity < Length || quantity > Stress || !m_units) {
        qCWarning(lcStatus) << "setUnit: there is no quantity" << quantity;
        return false;
    }
    if (!m_units->SetUnit(DisplayUnits::Quantity(quantity), unit)) {
        qCWarning(lcStatus).noquote() << "setUnit:" << unit << "is no unit of quantity" << quantity;
        return false;
    }
    return true;
}

} // namespace Orvo::UI::UIComponents
