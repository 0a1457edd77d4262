#include "Calculator.h"

#include "Debug.h"

#include <muParserBase.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <exception>
#include <optional>
#include <utility>
#include <vector>

namespace Orvo::Kernel::Framework {

namespace {

constexpr double c_pi = 3.14159265358979323846;
constexpr double c_e = 2.71828182845904523536;

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool IsBlank(wchar_t character)
{
    return character == L' ' || character == L'\t' || character == L'\u00A0';
}

// Reads the number at the start of the zero-terminated text: digits with an optional "." or ","
// decimal mark and an optional exponent. Returns how many characters it took, 0 when there is no
// number or when the number is out of the range of double.
std::size_t ReadNumber(const char* text, double& value)
{
    std::size_t end = 0;
    bool hasDigits = false;
    const char* decimalComma = nullptr;
    for (; IsDigit(text[end]); ++end)
        hasDigits = true;
    if (text[end] == '.' || text[end] == ',') {
        if (text[end] == ',')
            decimalComma = text + end;
        for (++end; IsDigit(text[end]); ++end)
            hasDigits = true;
    }
    if (!hasDigits)
        return 0;
    if (text[end] == 'e' || text[end] == 'E') {
        std::size_t exponent = end + 1;
        if (text[exponent] == '+' || text[exponent] == '-')
            ++exponent;
        if (IsDigit(text[exponent])) {
            while (IsDigit(text[exponent]))
                ++exponent;
            end = exponent;
        }
    }

    std::from_chars_result parsed;
    if (decimalComma) {
        std::string withPoint(text, end);
        withPoint[static_cast<std::size_t>(decimalComma - text)] = '.';
        parsed = std::from_chars(withPoint.data(), withPoint.data() + end, value);
    } else {
        parsed = std::from_chars(text, text + end, value);
    }
    return parsed.ec == std::errc() ? end : 0;
}

double Minimum(const double* arguments, int count)
{
    if (count < 1)
        throw mu::ParserError("min needs at least one argument");
    return *std::min_element(arguments, arguments + count);
}

double Maximum(const double* arguments, int count)
{
    if (count < 1)
        throw mu::ParserError("max needs at least one argument");
    return *std::max_element(arguments, arguments + count);
}

double Negate(double value)
{
    return -value;
}

double Unchanged(double value)
{
    return value;
}

using UnaryFunction = double (*)(double);

const std::pair<const char*, UnaryFunction> c_functions[] = {
    { "sin", [](double v) { return std::sin(v); } },     { "cos", [](double v) { return std::cos(v); } },
    { "tan", [](double v) { return std::tan(v); } },     { "asin", [](double v) { return std::asin(v); } },
    { "acos", [](double v) { return std::acos(v); } },   { "atan", [](double v) { return std::atan(v); } },
    { "sqrt", [](double v) { return std::sqrt(v); } },   { "abs", [](double v) { return std::fabs(v); } },
    { "exp", [](double v) { return std::exp(v); } },     { "ln", [](double v) { return std::log(v); } },
    { "log", [](double v) { return std::log10(v); } },   { "round", [](double v) { return std::round(v); } },
    { "floor", [](double v) { return std::floor(v); } }, { "ceil", [](double v) { return std::ceil(v); } },
};

constexpr std::size_t c_unitCount = CalculatorUnits::c_units.size();

// What the units of one evaluation do besides scaling to SI: each base quantity can be rescaled
// (how the result follows tells its dimension), and every unit records that it was used.
struct BaseScales
{
    double length = 1.0;
    double force = 1.0;
    double angle = 1.0;
};

struct UnitEvaluation
{
    BaseScales scales;
    std::array<bool, c_unitCount> used {};
    std::vector<std::size_t> order;

    void Reset(const BaseScales& newScales)
    {
        scales = newScales;
        used.fill(false);
        order.clear();
    }
};

thread_local UnitEvaluation t_units;

double PowerOf(double base, int exponent)
{
    double power = 1.0;
    for (int i = 0; i < std::abs(exponent); ++i)
        power *= base;
    return exponent < 0 ? 1.0 / power : power;
}

template<std::size_t Index> double ApplyUnit(double value)
{
    constexpr const CalculatorUnit& unit = CalculatorUnits::c_units[Index];
    if (!t_units.used[Index]) {
        t_units.used[Index] = true;
        t_units.order.push_back(Index);
    }
    const double scale = PowerOf(t_units.scales.length, unit.dimension.length)
        * PowerOf(t_units.scales.force, unit.dimension.force) * (unit.angle ? t_units.scales.angle : 1.0);
    // A unit below its base unit divides by the exact power of ten: multiplying by 0.001 would
    // round twice.
    const double inverse = 1.0 / unit.factor;
    if (unit.factor < 1.0 && inverse == std::round(inverse))
        return value * scale / inverse;
    return value * unit.factor * scale;
}

template<std::size_t... Index>
constexpr std::array<UnaryFunction, c_unitCount> UnitFunctions(std::index_sequence<Index...>)
{
    return { &ApplyUnit<Index>... };
}

constexpr std::array<UnaryFunction, c_unitCount> c_unitFunctions
    = UnitFunctions(std::make_index_sequence<c_unitCount>());

// muparser configured with exactly the calculator's grammar: no variables, no comparison or
// logical operators (CharactersOfGrammar keeps them out), ";" between function arguments so that
// "," can be a decimal mark, and the units as postfix operators so that they apply to a
// parenthesis as well as to a number. Units are never folded into constants at parse time, so that
// one parsed expression can be evaluated again with rescaled base quantities.
class CalculatorParser : public mu::ParserBase
{
public:
    CalculatorParser()
    {
        AddValIdent(&CalculatorParser::RecogniseNumber);
        InitCharSets();
        InitFun();
        InitConst();
        InitOprt();
        SetArgSep(';');
    }

    void InitCharSets() override
    {
        DefineNameChars("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
        DefineOprtChars("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ+-*/^");
        DefineInfixOprtChars("+-");
    }

    void InitFun() override
    {
        for (const auto& [name, function] : c_functions)
            DefineFun(name, function);
        DefineFun("min", &Minimum);
        DefineFun("max", &Maximum);
    }

    void InitConst() override
    {
        DefineConst("pi", c_pi);
        DefineConst("e", c_e);
    }

    void InitOprt() override
    {
        DefineInfixOprt("-", &Negate);
        DefineInfixOprt("+", &Unchanged);
        for (std::size_t i = 0; i < c_unitCount; ++i) {
            const std::wstring_view symbol = CalculatorUnits::c_units[i].symbol;
            DefinePostfixOprt(std::string(symbol.begin(), symbol.end()), c_unitFunctions[i], false);
        }
    }

private:
    static int RecogniseNumber(const char* text, int* position, double* value)
    {
        const std::size_t taken = ReadNumber(text, *value);
        if (taken == 0)
            return 0;
        *position += static_cast<int>(taken);
        return 1;
    }
};

// The narrow form of expression that muparser reads, or false when expression holds a character
// outside the grammar. The degree sign becomes "deg".
bool CharactersOfGrammar(const std::wstring& expression, std::string& narrow)
{
    narrow.clear();
    narrow.reserve(expression.size());
    for (const wchar_t character : expression) {
        if ((character >= L'0' && character <= L'9') || (character >= L'a' && character <= L'z')
            || (character >= L'A' && character <= L'Z')) {
            narrow.push_back(static_cast<char>(character));
            continue;
        }
        switch (character) {
        case L'.':
        case L',':
        case L';':
        case L'+':
        case L'-':
        case L'*':
        case L'/':
        case L'^':
        case L'(':
        case L')':
            narrow.push_back(static_cast<char>(character));
            break;
        case L'\u00B0':
            narrow.append("deg");
            break;
        default:
            if (!IsBlank(character))
                return false;
            narrow.push_back(' ');
        }
    }
    return true;
}

// Typing into a numeric field mostly produces plain numbers; they are read without the parser.
// Returns false when text is anything but an optionally signed number surrounded by blanks.
bool EvaluatePlainNumber(const std::wstring& expression, double& value)
{
    std::size_t begin = 0;
    std::size_t end = expression.size();
    while (begin < end && IsBlank(expression[begin]))
        ++begin;
    while (end > begin && IsBlank(expression[end - 1]))
        --end;
    bool negative = false;
    if (begin < end && (expression[begin] == L'-' || expression[begin] == L'+'))
        negative = expression[begin++] == L'-';

    char buffer[64];
    const std::size_t length = end - begin;
    if (length == 0 || length >= sizeof buffer)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        const wchar_t character = expression[begin + i];
        if (character > 0x7F)
            return false;
        buffer[i] = static_cast<char>(character);
    }
    buffer[length] = '\0';
    double number = 0.0;
    if (ReadNumber(buffer, number) != length)
        return false;
    value = negative ? -number : number;
    return true;
}

// How a result scales when a base quantity is rescaled by factor: the exponent of that quantity,
// or nullopt when it does not scale as a power (units added to other units, a unit inside sin).
std::optional<int> ScalingExponent(double base, double rescaled, double factor)
{
    const double ratio = rescaled / base;
    if (!(ratio > 0.0) || !std::isfinite(ratio))
        return std::nullopt;
    const double exponent = std::log(ratio) / std::log(factor);
    const double whole = std::round(exponent);
    if (std::fabs(exponent - whole) > 1e-9 || std::fabs(whole) > 16)
        return std::nullopt;
    return static_cast<int>(whole);
}

// The parser of this thread with expression set, or null when expression is outside the grammar.
CalculatorParser* ParserFor(const std::wstring& expression)
{
    thread_local std::string narrow;
    if (expression.size() > Calculator::c_maximumExpressionLength || !CharactersOfGrammar(expression, narrow))
        return nullptr;
    thread_local CalculatorParser parser;
    parser.SetExpr(narrow);
    return &parser;
}

// Evaluates the parser's expression with the base quantities rescaled; nullopt unless there is
// exactly one finite result.
std::optional<double> EvaluateScaled(CalculatorParser& parser, const BaseScales& scales = {})
{
    t_units.Reset(scales);
    const double result = parser.Eval();
    // A top-level ";" makes muparser return several results; a numeric field wants one.
    if (parser.GetNumResults() != 1 || !std::isfinite(result))
        return std::nullopt;
    return result;
}

template<class Function> auto Guarded(Function function) -> decltype(function())
{
    try {
        return function();
    } catch (const mu::ParserError&) {
        return {};
    } catch (const std::exception& exception) {
        DebugOutput(std::string("Calculator: ") + exception.what());
        return {};
    } catch (...) {
        DebugOutput("Calculator: unknown failure");
        return {};
    }
}

// The units named, in the order they were applied, with the dimension they share if they do.
void DescribeUnits(CalculatorQuantity& quantity)
{
    for (const std::size_t index : t_units.order)
        quantity.units.push_back(&CalculatorUnits::c_units[index]);
    quantity.namesUnits = !quantity.units.empty();
}

} // namespace

std::optional<CalculatorQuantity> Calculator::EvaluateQuantity(const std::wstring& expression)
{
    CalculatorQuantity quantity;
    if (EvaluatePlainNumber(expression, quantity.value)) {
        quantity.dimension = CalculatorUnits::c_number;
        return quantity;
    }
    return Guarded([&]() -> std::optional<CalculatorQuantity> {
        CalculatorParser* parser = ParserFor(expression);
        if (!parser)
            return std::nullopt;
        const std::optional<double> value = EvaluateScaled(*parser);
        if (!value)
            return std::nullopt;
        quantity.value = *value;
        DescribeUnits(quantity);
        if (!quantity.namesUnits) {
            quantity.dimension = CalculatorUnits::c_number;
            return quantity;
        }
        // Rescaling metres by 2, newtons by 3 and radians by 5 multiplies a moment by 6, a stress
        // by 3/4 and an angle by 5: how the value follows gives its dimension. An angle that went
        // into sin or cos follows no power and leaves a plain number. A zero value follows nothing
        // and leaves the dimension open.
        constexpr BaseScales factors { 2.0, 3.0, 5.0 };
        const auto lengthRescaled = EvaluateScaled(*parser, { factors.length, 1.0, 1.0 });
        const auto forceRescaled = EvaluateScaled(*parser, { 1.0, factors.force, 1.0 });
        const auto angleRescaled = EvaluateScaled(*parser, { 1.0, 1.0, factors.angle });
        if (*value == 0.0 || !lengthRescaled || !forceRescaled || !angleRescaled)
            return quantity;
        const auto length = ScalingExponent(*value, *lengthRescaled, factors.length);
        const auto force = ScalingExponent(*value, *forceRescaled, factors.force);
        quantity.unitsFit = length.has_value() && force.has_value();
        if (quantity.unitsFit)
            quantity.dimension = UnitDimension { *length, *force };
        quantity.angle = quantity.dimension == CalculatorUnits::c_number
            && ScalingExponent(*value, *angleRescaled, factors.angle) == 1;
        return quantity;
    });
}

bool Calculator::Evaluate(const std::wstring& expression, double& value)
{
    double result = 0.0;
    if (EvaluatePlainNumber(expression, result)) {
        value = result;
        return true;
    }
    const std::optional<double> evaluated = Guarded([&]() -> std::optional<double> {
        CalculatorParser* parser = ParserFor(expression);
        return parser ? EvaluateScaled(*parser) : std::nullopt;
    });
    if (!evaluated)
        return false;
    value = *evaluated;
    return true;
}

} // namespace Orvo::Kernel::Framework
