#pragma once

#include "CalculatorUnits.h"
#include "HostKitExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Orvo::Kernel::Framework {

// An expression's value with what its units make of it.
struct CalculatorQuantity
{
    // In SI base units when the expression names units, else as written.
    double value = 0.0;
    bool namesUnits = false;
    // False when units of different dimensions were added or a unit went into a function that
    // takes a plain number (1m + 1kN, sin(2m)).
    bool unitsFit = true;
    // Empty when the units do not fit, or when a zero value leaves the dimension open.
    std::optional<UnitDimension> dimension;
    // The value is an angle (in radians), not a plain number: "30deg" is one, "sin(30deg)" is not.
    bool angle = false;
    // Each unit named, once, in the order the calculation used them.
    std::vector<const CalculatorUnit*> units;
};

// The host's expression calculator behind every numeric input.
//
// Grammar: numbers with "." or "," as the decimal mark and an optional exponent (1,5e3);
// + - * / and ^ (right-associative, binding tighter than unary minus: -2^2 is -4); parentheses;
// unary + and -; the constants pi and e; the functions sin cos tan asin acos atan (radians),
// sqrt abs exp ln log (base 10) round floor ceil, and min max with any number of arguments
// separated by ";". A unit of CalculatorUnits written after a number or a parenthesis scales it
// to SI base units, so "2*500mm" is 1, "5kN*2m" is 10000 (a moment) and "sin(30deg)" is 0.5.
// White space between tokens is ignored. Expressions longer than c_maximumExpressionLength are
// refused unread, so that evaluating on every keystroke stays well within a frame.
//
// Thread-safe: every thread evaluates with a parser of its own.
class HOSTKIT_EXPORT Calculator
{
public:
    static constexpr std::size_t c_maximumExpressionLength = 1000;

    // True when expression is valid and its value is finite; value is written only then.
    // Never throws.
    static bool Evaluate(const std::wstring& expression, double& value);

    // The value with its dimension, or nullopt when expression is not valid (as for Evaluate).
    // Never throws.
    static std::optional<CalculatorQuantity> EvaluateQuantity(const std::wstring& expression);
};

} // namespace Orvo::Kernel::Framework
