#pragma once

#include <optional>
#include <string_view>

namespace Orvo::UI::UIComponents {

// One side of a comparison: its text and, read once, the number the whole text is (if any).
// A view: the text must outlive it.
struct ComparedText
{
    static ComparedText Read(std::wstring_view text);

    std::wstring_view text;
    std::optional<double> number;
};

// The comparisons that filter conditions make between a cell's text and a filter operand:
// as numbers when both sides read as numbers (within the tolerance of the shown decimals),
// otherwise in the natural text order.
class FilterComparison
{
public:
    // Accepts "," as well as "." as the decimal mark. Without trailing characters allowed the
    // whole text must be the number (leading blanks are fine). Never throws.
    static std::optional<double> ReadNumber(std::wstring_view text, bool allowTrailingCharacters);

    // One unit of the last shown decimal, or the machine epsilon without a usable precision.
    static double Tolerance(int precision);

    // a is always the left side: IsLess(a, b) is "a < b".
    static bool IsLess(ComparedText const& a, ComparedText const& b, int precision);
    static bool IsLessOrEqual(ComparedText const& a, ComparedText const& b, int precision);
    static bool Equal(ComparedText const& a, ComparedText const& b, int precision);
};

} // namespace Orvo::UI::UIComponents
