#include "FilterComparison.h"

#include "NaturalTextOrder.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <limits>
#include <locale.h>
#include <string>
#include <wchar.h>

namespace Orvo::UI::UIComponents {

namespace {

// Qt sets the process locale from the environment, where the decimal mark may be a comma;
// filter numbers always use "." after the comma has been replaced, so they are read in "C".
locale_t NumberLocale()
{
    static const locale_t locale = newlocale(LC_NUMERIC_MASK, "C", locale_t(nullptr));
    return locale;
}

// Cell texts are short: they are read from a buffer on the stack unless they are not.
constexpr std::size_t c_inlineNumberLength = 64;

std::optional<double> ConvertNumber(const wchar_t* begin, std::size_t length, bool allowTrailingCharacters)
{
    wchar_t* end = nullptr;
    errno = 0;
    const locale_t locale = NumberLocale();
    // Without memory for a locale object the process locale has to do.
    const double value = locale ? wcstod_l(begin, &end, locale) : wcstod(begin, &end);
    if (end == begin || errno == ERANGE)
        return std::nullopt;
    if (!allowTrailingCharacters && end != begin + length)
        return std::nullopt;
    return value;
}

struct NumberPair
{
    std::optional<double> a;
    std::optional<double> b;
    bool BothRead() const { return a && b; }
};

NumberPair ReadNumbers(ComparedText const& a, ComparedText const& b)
{
    NumberPair numbers { a.number, b.number };
    if (numbers.a && !numbers.b)
        numbers.b = FilterComparison::ReadLeniently(b.text);
    else if (!numbers.a && numbers.b)
        numbers.a = FilterComparison::ReadLeniently(a.text);
    return numbers;
}

} // namespace

ComparedText ComparedText::Read(std::wstring_view text)
{
    return { text, FilterComparison::ReadNumber(text, false) };
}

std::optional<double> FilterComparison::ReadNumber(std::wstring_view text, bool allowTrailingCharacters)
{
    std::array<wchar_t, c_inlineNumberLength + 1> inlineBuffer;
    std::wstring heapBuffer;
    wchar_t* buffer = inlineBuffer.data();
    if (text.size() > c_inlineNumberLength) {
        heapBuffer.resize(text.size());
        buffer = heapBuffer.data();
    }
    for (std::size_t i = 0; i < text.size(); ++i)
        buffer[i] = text[i] == L',' ? L'.' : text[i];
    buffer[text.size()] = L'\0';
    return ConvertNumber(buffer, text.size(), allowTrailingCharacters);
}

// A text that is not a number on its own (a cell showing "12.5 kN") still counts as the number
// from its first digit on when the other side is a number. Signs and decimal points before that
// digit are dropped on purpose ("-12 kN" reads as 12): saved filters depend on this reading.
std::optional<double> FilterComparison::ReadLeniently(std::wstring_view text)
{
    const std::size_t firstDigit = text.find_first_of(L"0123456789");
    if (firstDigit == std::wstring_view::npos)
        return std::nullopt;
    return ReadNumber(text.substr(firstDigit), true);
}

double FilterComparison::Tolerance(int precision)
{
    static constexpr std::array<double, 15> c_unitOfLastDecimal { 1.0,   1e-1,  1e-2,  1e-3,  1e-4,
                                                                  1e-5,  1e-6,  1e-7,  1e-8,  1e-9,
                                                                  1e-10, 1e-11, 1e-12, 1e-13, 1e-14 };
    if (precision >= 0 && precision < int(c_unitOfLastDecimal.size()))
        return c_unitOfLastDecimal[std::size_t(precision)];
    return std::numeric_limits<double>::epsilon();
}

bool FilterComparison::IsLess(ComparedText const& a, ComparedText const& b, int precision)
{
    const NumberPair numbers = ReadNumbers(a, b);
    if (numbers.BothRead())
        return IsLess(*numbers.a, *numbers.b, precision);
    return NaturalTextOrder::Before(a.text, b.text);
}

bool FilterComparison::IsLessOrEqual(ComparedText const& a, ComparedText const& b, int precision)
{
    const NumberPair numbers = ReadNumbers(a, b);
    if (numbers.BothRead())
        return IsLessOrEqual(*numbers.a, *numbers.b, precision);
    return !NaturalTextOrder::Before(b.text, a.text);
}

bool FilterComparison::Equal(ComparedText const& a, ComparedText const& b, int precision)
{
    const NumberPair numbers = ReadNumbers(a, b);
    if (numbers.BothRead())
        return Equal(*numbers.a, *numbers.b, precision);
    return !NaturalTextOrder::Before(a.text, b.text) && !NaturalTextOrder::Before(b.text, a.text);
}

} // namespace Orvo::UI::UIComponents
