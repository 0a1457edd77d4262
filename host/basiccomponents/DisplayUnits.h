#pragma once

#include "HostKitExport.h"

#include <QString>
#include <QStringList>

#include <array>
#include <memory>

namespace Orvo::Kernel::Framework {
class EventBus;
}

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::BasicComponents {

// The units the user reads and types values in, one per quantity. Values are kept in the unit
// their definition names ("m", "kN"); fields, tables and the status bar show them in the unit
// chosen here and read typed values back from it. A service of the catalog; every change is
// stored in the user's settings and announced with Orvo::UI::Events::DisplayUnitsChanged.
//
// Only values kept in the base unit of one of these quantities (m, kN, kNm, MPa) follow the
// choice. Values kept in another unit of the same kind belong to a finer quantity with a unit of
// its own: section dimensions and displacements in mm stay in mm when lengths switch to cm.
// Derived units (kN/m, cm², kNm/rad) keep theirs too: converting them would give texts like
// "N/mm" that no engineer types.
class HOSTKIT_EXPORT DisplayUnits
{
public:
    enum class Quantity
    {
        Length,
        Force,
        Moment,
        Stress,
    };
    static constexpr std::array<Quantity, 4> c_quantities { Quantity::Length, Quantity::Force,
                                                            Quantity::Moment, Quantity::Stress };

    // How a value kept in one unit is shown: value × scale, in unit, with decimals decimals.
    struct Shown
    {
        QString unit;
        double scale = 1.0;
        int decimals = 0;

        double ToShown(double stored) const { return stored * scale; }
        double FromShown(double shown) const { return shown / scale; }
    };

    explicit DisplayUnits(std::weak_ptr<Kernel::Framework::EventBus> eventbus = {},
                          std::shared_ptr<DataModel::Settings> settings = nullptr);

    // The symbols a quantity can be shown in, smallest first, from the calculator's unit table
    // (so that whatever is shown can also be typed).
    static QStringList Choices(Quantity quantity);
    // The unit of a new installation: SI units of structural practice (m, kN, kNm, MPa).
    static QString DefaultUnit(Quantity quantity);
    // The text identifier of the quantity's name ("Length").
    static QString NameId(Quantity quantity);

    QString GetUnit(Quantity quantity) const;
    // False, and nothing changes, for a symbol that is not one of the quantity's choices.
    bool SetUnit(Quantity quantity, const QString& symbol);

    // How a value of storedUnit with storedDecimals is shown. Decimals follow the scale, so that a
    // length kept in metres to the millimetre shows in millimetres without decimals and in
    // centimetres with one. A unit of no chosen quantity is shown as it is.
    Shown ForStoredUnit(const QString& storedUnit, int storedDecimals) const;
    // A value given in SI base units (metres, newtons) of quantity, in the chosen unit.
    double FromSI(Quantity quantity, double value) const;

private:
    void Announce() const;

    std::weak_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<DataModel::Settings> m_settings;
    std::array<QString, 4> m_units;
};

} // namespace Orvo::UI::BasicComponents
