#include "CalculatorReading.h"

#include "Calculator.h"
#include "CalculatorUnits.h"
#include "DefaultServices.h"
#include "IStringLoader.h"
#include "ServiceCatalog.h"

#include <limits>

namespace Orvo::Kernel::Framework {

namespace {

std::wstring Text(const std::wstring& id)
{
    const auto catalog = ServiceCatalog::Global();
    const auto strings = catalog ? catalog->Get<IStringLoader>() : nullptr;
    return strings ? strings->Load({ id, DefaultServices::c_componentsStringTable }) : id;
}

// The text of id with its %1, %2, ... replaced by arguments, in order.
std::wstring Text(const std::wstring& id, std::initializer_list<std::wstring> arguments)
{
    std::wstring text = Text(id);
    int number = 1;
    for (const std::wstring& argument : arguments) {
        const std::wstring placeholder = L"%" + std::to_wstring(number++);
        if (const auto at = text.find(placeholder); at != std::wstring::npos)
            text.replace(at, placeholder.size(), argument);
    }
    return text;
}

std::wstring UnitList(const CalculatorQuantity& quantity)
{
    std::wstring list;
    for (const CalculatorUnit* unit : quantity.units)
        list += (list.empty() ? L"" : L", ") + std::wstring(unit->symbol);
    return list;
}

// What a field takes or an expression gives: its dimension, and for plain numbers whether it is
// an angle.
struct Kind
{
    UnitDimension dimension;
    bool angle = false;

    friend bool operator==(const Kind& a, const Kind& b)
    {
        return a.dimension == b.dimension && a.angle == b.angle;
    }
    friend bool operator!=(const Kind& a, const Kind& b) { return !(a == b); }
    std::wstring Name() const { return Text(CalculatorUnits::QuantityTextId(dimension, angle)); }
};

Kind KindOf(const CalculatorUnit& unit)
{
    return { unit.dimension, unit.angle };
}

// What the units of a quantity make of it. A zero value follows no rescaling, so its kind is the
// one all its units share, or else the field's: nought metres are nought newtons too.
Kind KindOf(const CalculatorQuantity& quantity, const Kind& field)
{
    if (quantity.dimension)
        return { *quantity.dimension, quantity.angle };
    for (const CalculatorUnit* unit : quantity.units) {
        if (KindOf(*unit) != KindOf(*quantity.units.front()))
            return field;
    }
    return KindOf(*quantity.units.front());
}

// The first unit named when every unit named is of the same kind, and not the field's: then
// that unit alone is what the user got wrong.
const CalculatorUnit* OneForeignKindOfUnit(const CalculatorQuantity& quantity, const Kind& field)
{
    const CalculatorUnit* foreign = quantity.units.front();
    for (const CalculatorUnit* unit : quantity.units) {
        if (KindOf(*unit) != KindOf(*foreign))
            return nullptr;
    }
    return KindOf(*foreign) == field ? nullptr : foreign;
}

CalculatorReading Refused(std::wstring message)
{
    return { false, std::numeric_limits<double>::quiet_NaN(), std::move(message) };
}

} // namespace

CalculatorReading CalculatorReading::Evaluate(const std::wstring& expression, const std::wstring& fieldUnit)
{
    if (expression.size() > Calculator::c_maximumExpressionLength)
        return Refused(Text(L"UI_CALC_TOO_LONG", { std::to_wstring(Calculator::c_maximumExpressionLength) }));
    const std::optional<CalculatorQuantity> quantity = Calculator::EvaluateQuantity(expression);
    if (!quantity)
        return Refused(Text(L"UI_INLINE_CALC_ERROR"));
    if (!quantity->unitsFit)
        return Refused(Text(L"UI_CALC_UNITS_DO_NOT_FIT", { UnitList(*quantity) }));

    const FieldUnit unit = CalculatorUnits::ParseFieldUnit(fieldUnit).value_or(FieldUnit {});
    const Kind field { unit.dimension, unit.angle };
    // A plain number, with or without units on the way ("2*150", "1kN/1N", "2*sin(30deg)"), is
    // read in the field's unit.
    if (!quantity->namesUnits)
        return { true, quantity->value, {} };
    const Kind result = KindOf(*quantity, field);
    if (result == Kind {})
        return { true, quantity->value, {} };
    if (result == field)
        return { true, quantity->value / unit.factor, {} };

    const CalculatorUnit* foreign = OneForeignKindOfUnit(*quantity, field);
    if (foreign && KindOf(*foreign) == result)
        return Refused(Text(L"UI_CALC_UNIT_OF_OTHER_QUANTITY",
                            { std::wstring(foreign->symbol), KindOf(*foreign).Name(), field.Name() }));
    return Refused(Text(L"UI_CALC_RESULT_OF_OTHER_QUANTITY", { result.Name(), field.Name() }));
}

} // namespace Orvo::Kernel::Framework
