#pragma once

#include <cmath>
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

// One side of a comparison of folded numbers: the number the whole text is, and else the number
// read from its first digit on.
struct FoldedSide
{
    std::optional<double> strict;
    std::optional<double> lenient;
};

struct FoldedPair
{
    double a;
    double b;
};

// The numbers two sides compare as, as ReadNumbers reads them for the texts; nothing when they
// compare as texts.
inline std::optional<FoldedPair> ComparedNumbers(FoldedSide const& a, FoldedSide const& b)
{
    if (a.strict && b.strict)
        return FoldedPair { *a.strict, *b.strict };
    if (a.strict && b.lenient)
        return FoldedPair { *a.strict, *b.lenient };
    if (b.strict && a.lenient)
        return FoldedPair { *a.lenient, *b.strict };
    return std::nullopt;
}

// The comparisons that filter conditions make between a cell's text and a filter operand:
// as numbers when both sides read as numbers (within the tolerance of the shown decimals),
// otherwise in the natural text order.
class FilterComparison
{
public:
    // Accepts "," as well as "." as the decimal mark. Without trailing characters allowed the
    // whole text must be the number (leading blanks are fine). Never throws.
    static std::optional<double> ReadNumber(std::wstring_view text, bool allowTrailingCharacters);

    // The number a text is from its first digit on, for a side compared with a number.
    static std::optional<double> ReadLeniently(std::wstring_view text);

    // One unit of the last shown decimal, or the machine epsilon without a usable precision.
    static double Tolerance(int precision);

    // a is always the left side: IsLess(a, b) is "a < b".
    static bool IsLess(ComparedText const& a, ComparedText const& b, int precision);
    static bool IsLessOrEqual(ComparedText const& a, ComparedText const& b, int precision);
    static bool Equal(ComparedText const& a, ComparedText const& b, int precision);

    // The same comparisons once both sides are numbers.
    static bool IsLess(double a, double b, int precision) { return IsLessWithin(a, b, Tolerance(precision)); }
    static bool IsLessOrEqual(double a, double b, int precision)
    {
        return IsLessOrEqualWithin(a, b, Tolerance(precision));
    }
    static bool Equal(double a, double b, int precision) { return EqualWithin(a, b, Tolerance(precision)); }
    // And with the tolerance already looked up, for loops over many cells of one precision.
    static bool IsLessWithin(double a, double b, double tolerance) { return b - a > tolerance; }
    static bool IsLessOrEqualWithin(double a, double b, double tolerance) { return b - a > -tolerance; }
    static bool EqualWithin(double a, double b, double tolerance) { return tolerance >= std::abs(a - b); }
};

} // namespace Orvo::UI::UIComponents
