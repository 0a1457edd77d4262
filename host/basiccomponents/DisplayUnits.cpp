#include "DisplayUnits.h"

#include "datamodel/Settings.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/CalculatorUnits.h"
#include "framework/EventBus.h"

#include <cmath>

namespace Orvo::UI::BasicComponents {

using Kernel::Framework::CalculatorUnits;
using Kernel::Framework::UnitDimension;

namespace {

std::size_t Slot(DisplayUnits::Quantity quantity)
{
    return static_cast<std::size_t>(quantity);
}

UnitDimension Dimension(DisplayUnits::Quantity quantity)
{
    switch (quantity) {
    case DisplayUnits::Quantity::Length:
        return CalculatorUnits::c_length;
    case DisplayUnits::Quantity::Force:
        return CalculatorUnits::c_force;
    case DisplayUnits::Quantity::Moment:
        return CalculatorUnits::c_moment;
    case DisplayUnits::Quantity::Stress:
        return CalculatorUnits::c_stress;
    }
    return CalculatorUnits::c_number;
}

QString SettingKey(DisplayUnits::Quantity quantity)
{
    switch (quantity) {
    case DisplayUnits::Quantity::Length:
        return DataModel::Settings::c_lengthUnit;
    case DisplayUnits::Quantity::Force:
        return DataModel::Settings::c_forceUnit;
    case DisplayUnits::Quantity::Moment:
        return DataModel::Settings::c_momentUnit;
    case DisplayUnits::Quantity::Stress:
        return DataModel::Settings::c_stressUnit;
    }
    return {};
}

double Factor(const QString& symbol)
{
    const auto* unit = CalculatorUnits::Find(symbol.toStdWString());
    return unit ? unit->factor : 1.0;
}

} // namespace

DisplayUnits::DisplayUnits(std::weak_ptr<Kernel::Framework::EventBus> eventbus,
                           std::shared_ptr<DataModel::Settings> settings)
    : m_eventbus(std::move(eventbus))
    , m_settings(std::move(settings))
{
    for (Quantity quantity : c_quantities) {
        QString unit = DefaultUnit(quantity);
        if (m_settings) {
            const QString stored = m_settings->Value(SettingKey(quantity)).toString();
            // A unit the table no longer has (a hand-edited file) falls back to the default.
            if (Choices(quantity).contains(stored))
                unit = stored;
        }
        m_units[Slot(quantity)] = unit;
    }
}

QStringList DisplayUnits::Choices(Quantity quantity)
{
    QStringList choices;
    for (const auto& unit : CalculatorUnits::c_units) {
        if (!unit.angle && unit.dimension == Dimension(quantity))
            choices << QString::fromWCharArray(unit.symbol.data(), qsizetype(unit.symbol.size()));
    }
    return choices;
}

QString DisplayUnits::DefaultUnit(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Length:
        return QStringLiteral("m");
    case Quantity::Force:
        return QStringLiteral("kN");
    case Quantity::Moment:
        return QStringLiteral("kNm");
    case Quantity::Stress:
        return QStringLiteral("MPa");
    }
    return {};
}

QString DisplayUnits::NameId(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Length:
        return QStringLiteral("UI_UNITS_LENGTH");
    case Quantity::Force:
        return QStringLiteral("UI_UNITS_FORCE");
    case Quantity::Moment:
        return QStringLiteral("UI_UNITS_MOMENT");
    case Quantity::Stress:
        return QStringLiteral("UI_UNITS_STRESS");
    }
    return {};
}

QString DisplayUnits::GetUnit(Quantity quantity) const
{
    return m_units[Slot(quantity)];
}

bool DisplayUnits::SetUnit(Quantity quantity, const QString& symbol)
{
    if (!Choices(quantity).contains(symbol))
        return false;
    if (m_units[Slot(quantity)] == symbol)
        return true;
    m_units[Slot(quantity)] = symbol;
    if (m_settings)
        m_settings->SetValue(SettingKey(quantity), symbol);
    Announce();
    return true;
}

DisplayUnits::Shown DisplayUnits::ForStoredUnit(const QString& storedUnit, int storedDecimals) const
{
    Shown shown { storedUnit, 1.0, storedDecimals };
    const auto* stored = CalculatorUnits::Find(storedUnit.toStdWString());
    if (!stored || stored->angle)
        return shown;
    for (Quantity quantity : c_quantities) {
        if (stored->dimension != Dimension(quantity) || storedUnit != DefaultUnit(quantity))
            continue;
        const QString& unit = m_units[Slot(quantity)];
        shown.unit = unit;
        shown.scale = stored->factor / Factor(unit);
        // Decimals are powers of ten: a scale of 1000 takes three decimals away.
        const int shift = int(std::lround(std::log10(shown.scale)));
        shown.decimals = std::max(0, storedDecimals - shift);
        break;
    }
    return shown;
}

double DisplayUnits::FromSI(Quantity quantity, double value) const
{
    return value / Factor(m_units[Slot(quantity)]);
}

void DisplayUnits::Announce() const
{
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(Events::DisplayUnitsChanged());
}

} // namespace Orvo::UI::BasicComponents
