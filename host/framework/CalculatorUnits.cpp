#include "CalculatorUnits.h"

#include <cmath>

namespace Orvo::Kernel::Framework {

namespace {

struct QuantityName
{
    UnitDimension dimension;
    const wchar_t* textId;
};

const QuantityName c_quantityNames[] = {
    { CalculatorUnits::c_number, L"UI_QUANTITY_NUMBER" },
    { CalculatorUnits::c_length, L"UI_QUANTITY_LENGTH" },
    { { 2, 0 }, L"UI_QUANTITY_AREA" },
    { { 3, 0 }, L"UI_QUANTITY_VOLUME" },
    { { 4, 0 }, L"UI_QUANTITY_SECOND_MOMENT_OF_AREA" },
    { CalculatorUnits::c_force, L"UI_QUANTITY_FORCE" },
    { CalculatorUnits::c_forcePerLength, L"UI_QUANTITY_FORCE_PER_LENGTH" },
    { CalculatorUnits::c_stress, L"UI_QUANTITY_STRESS" },
    { { -3, 1 }, L"UI_QUANTITY_WEIGHT_PER_VOLUME" },
    { CalculatorUnits::c_moment, L"UI_QUANTITY_MOMENT" },
};

int SuperscriptDigit(wchar_t character)
{
    switch (character) {
    case L'\u00B9':
        return 1;
    case L'\u00B2':
        return 2;
    case L'\u00B3':
        return 3;
    case L'\u2074':
        return 4;
    default:
        return -1;
    }
}

// One factor of a field unit: a symbol of the table with an optional exponent ("m²", "cm^4").
std::optional<FieldUnit> ParseFactor(std::wstring_view text)
{
    int exponent = 1;
    if (!text.empty() && SuperscriptDigit(text.back()) > 0) {
        exponent = SuperscriptDigit(text.back());
        text.remove_suffix(1);
    } else if (const auto caret = text.find(L'^'); caret != std::wstring_view::npos) {
        const std::wstring_view digits = text.substr(caret + 1);
        if (digits.size() != 1 || digits[0] < L'1' || digits[0] > L'9')
            return std::nullopt;
        exponent = digits[0] - L'0';
        text = text.substr(0, caret);
    }
    const CalculatorUnit* unit = CalculatorUnits::Find(text);
    if (!unit)
        return std::nullopt;
    return FieldUnit { std::pow(unit->factor, exponent),
                       { unit->dimension.length * exponent, unit->dimension.force * exponent },
                       unit->angle };
}

void Combine(FieldUnit& into, const FieldUnit& factor, bool divide)
{
    const int sign = divide ? -1 : 1;
    into.factor = divide ? into.factor / factor.factor : into.factor * factor.factor;
    into.dimension.length += sign * factor.dimension.length;
    into.dimension.force += sign * factor.dimension.force;
    // "kNm/rad" is a stiffness, not an angle: only a unit that is nothing but an angle is one.
    into.angle = false;
}

} // namespace

const CalculatorUnit* CalculatorUnits::Find(std::wstring_view symbol)
{
    if (symbol.size() == 1 && symbol[0] == c_degreeSign)
        symbol = L"deg";
    for (const CalculatorUnit& unit : c_units) {
        if (unit.symbol == symbol)
            return &unit;
    }
    return nullptr;
}

std::optional<FieldUnit> CalculatorUnits::ParseFieldUnit(std::wstring_view text)
{
    if (text.empty())
        return FieldUnit {};
    // Compound symbols of the table ("kN/m") are units of their own before they are quotients.
    if (const CalculatorUnit* unit = Find(text))
        return FieldUnit { unit->factor, unit->dimension, unit->angle };

    FieldUnit result;
    bool divide = false;
    int factors = 0;
    std::size_t begin = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const bool end = i == text.size();
        if (!end && text[i] != L'/' && text[i] != L'*' && text[i] != L'\u00B7')
            continue;
        const auto factor = ParseFactor(text.substr(begin, i - begin));
        if (!factor)
            return std::nullopt;
        Combine(result, *factor, divide);
        if (++factors == 1)
            result.angle = factor->angle;
        if (!end && text[i] == L'/')
            divide = true;
        begin = i + 1;
    }
    return result;
}

std::wstring CalculatorUnits::QuantityTextId(UnitDimension dimension, bool angle)
{
    if (angle && dimension == c_number)
        return L"UI_QUANTITY_ANGLE";
    for (const QuantityName& name : c_quantityNames) {
        if (name.dimension == dimension)
            return name.textId;
    }
    return L"UI_QUANTITY_OTHER";
}

} // namespace Orvo::Kernel::Framework
