#pragma once

#include "HostKitExport.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace Orvo::Kernel::Framework {

// How a quantity is built from the two base quantities of structural work, length and force:
// a moment is force × length, a stress force / length². Angles count as plain numbers, as in SI.
struct UnitDimension
{
    int length = 0;
    int force = 0;

    friend bool operator==(const UnitDimension& a, const UnitDimension& b)
    {
        return a.length == b.length && a.force == b.force;
    }
    friend bool operator!=(const UnitDimension& a, const UnitDimension& b) { return !(a == b); }
};

// One unit the calculator knows: typed after a number or a parenthesis, it scales that value to
// the SI base units of its dimension (metres, newtons, radians).
struct CalculatorUnit
{
    std::wstring_view symbol;
    double factor;
    UnitDimension dimension;
    bool angle = false; // a plain number in SI, but named as an angle to the user
};

// A unit as a field names it: one of the table's symbols or a product and quotient of them with
// exponents ("kN/m²", "kNm/rad", "cm^4").
struct FieldUnit
{
    double factor = 1.0;
    UnitDimension dimension;
    bool angle = false;
};

// The calculator's one table of units and dimensions. Everything that converts between units or
// names a quantity asks here, so that a unit is added in one place.
class HOSTKIT_EXPORT CalculatorUnits
{
public:
    static constexpr UnitDimension c_number {};
    static constexpr UnitDimension c_length { 1, 0 };
    static constexpr UnitDimension c_force { 0, 1 };
    static constexpr UnitDimension c_stress { -2, 1 };
    static constexpr UnitDimension c_moment { 1, 1 };
    static constexpr UnitDimension c_forcePerLength { -1, 1 };

    // The degree sign is written "deg" inside the calculator's grammar.
    static constexpr wchar_t c_degreeSign = L'\u00B0';

    static constexpr std::array<CalculatorUnit, 18> c_units { {
        { L"mm", 1e-3, c_length },
        { L"cm", 1e-2, c_length },
        { L"dm", 1e-1, c_length },
        { L"m", 1.0, c_length },
        { L"km", 1e3, c_length },
        { L"N", 1.0, c_force },
        { L"kN", 1e3, c_force },
        { L"MN", 1e6, c_force },
        { L"Pa", 1.0, c_stress },
        { L"kPa", 1e3, c_stress },
        { L"MPa", 1e6, c_stress },
        { L"GPa", 1e9, c_stress },
        { L"Nm", 1.0, c_moment },
        { L"kNm", 1e3, c_moment },
        { L"N/m", 1.0, c_forcePerLength },
        { L"kN/m", 1e3, c_forcePerLength },
        { L"deg", 3.14159265358979323846 / 180.0, c_number, true },
        { L"rad", 1.0, c_number, true },
    } };

    // The unit written exactly as symbol (the degree sign counts as "deg"), or null.
    static const CalculatorUnit* Find(std::wstring_view symbol);

    // The unit a field names, or nullopt when the text is no product or quotient of known units.
    // An empty text is a plain number.
    static std::optional<FieldUnit> ParseFieldUnit(std::wstring_view text);

    // The text identifier (components' string table) of the quantity's name with its article,
    // "a length", "an angle"; a dimension without a name of its own is "another quantity".
    static std::wstring QuantityTextId(UnitDimension dimension, bool angle);
};

} // namespace Orvo::Kernel::Framework
