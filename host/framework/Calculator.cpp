#include "Calculator.h"

#include "Debug.h"

#include <muParserBase.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <exception>

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

template<int Exponent> double ScaleByPowerOfTen(double value)
{
    constexpr double factor = [] {
        double power = 1.0;
        for (int i = 0; i < (Exponent < 0 ? -Exponent : Exponent); ++i)
            power *= 10.0;
        return power;
    }();
    // Dividing by an exact power of ten rounds once; multiplying by 0.001 would round twice.
    if constexpr (Exponent < 0)
        return value / factor;
    else
        return value * factor;
}

double DegreesToRadians(double value)
{
    return value * (c_pi / 180.0);
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

// Each unit scales the value before it to the SI base unit of its quantity.
const std::pair<const char*, UnaryFunction> c_units[] = {
    { "mm", &ScaleByPowerOfTen<-3> }, { "cm", &ScaleByPowerOfTen<-2> }, { "dm", &ScaleByPowerOfTen<-1> },
    { "m", &ScaleByPowerOfTen<0> },   { "km", &ScaleByPowerOfTen<3> },  { "N", &ScaleByPowerOfTen<0> },
    { "kN", &ScaleByPowerOfTen<3> },  { "MN", &ScaleByPowerOfTen<6> },  { "Pa", &ScaleByPowerOfTen<0> },
    { "kPa", &ScaleByPowerOfTen<3> }, { "MPa", &ScaleByPowerOfTen<6> }, { "GPa", &ScaleByPowerOfTen<9> },
    { "deg", &DegreesToRadians },     { "rad", &ScaleByPowerOfTen<0> },
};

// muparser configured with exactly the calculator's grammar: no variables, no comparison or
// logical operators (CharactersOfGrammar keeps them out), ";" between function arguments so that
// "," can be a decimal mark, and the units as postfix operators so that they apply to a
// parenthesis as well as to a number.
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
        for (const auto& [name, scale] : c_units)
            DefinePostfixOprt(name, scale);
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

} // namespace

bool Calculator::Evaluate(const std::wstring& expression, double& value)
{
    double result = 0.0;
    if (EvaluatePlainNumber(expression, result)) {
        value = result;
        return true;
    }

    try {
        thread_local std::string narrow;
        if (!CharactersOfGrammar(expression, narrow))
            return false;
        thread_local CalculatorParser parser;
        parser.SetExpr(narrow);
        result = parser.Eval();
        // A top-level ";" makes muparser return several results; a numeric field wants one.
        if (parser.GetNumResults() != 1 || !std::isfinite(result))
            return false;
        value = result;
        return true;
    } catch (const mu::ParserError&) {
        return false;
    } catch (const std::exception& exception) {
        DebugOutput(std::string("Calculator: ") + exception.what());
        return false;
    } catch (...) {
        DebugOutput("Calculator: unknown failure");
        return false;
    }
}

} // namespace Orvo::Kernel::Framework
