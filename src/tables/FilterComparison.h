#pragma once

#include <optional>
#include <string_view>

namespace Orvo::UI::UIComponents {

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
    static bool IsLess(std::wstring_view a, std::wstring_view b, int precision);
    static bool IsLessOrEqual(std::wstring_view a, std::wstring_view b, int precision);
    static bool Equal(std::wstring_view a, std::wstring_view b, int precision);
};

} // namespace Orvo::UI::UIComponents
