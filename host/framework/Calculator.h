#pragma once

#include "HostKitExport.h"

#include <string>

namespace Orvo::Kernel::Framework {

// The host's expression calculator behind every numeric input.
//
// Grammar: numbers with "." or "," as the decimal mark and an optional exponent (1,5e3);
// + - * / and ^ (right-associative, binding tighter than unary minus: -2^2 is -4); parentheses;
// unary + and -; the constants pi and e; the functions sin cos tan asin acos atan (radians),
// sqrt abs exp ln log (base 10) round floor ceil, and min max with any number of arguments
// separated by ";". A unit written after a number or a parenthesis scales it to SI base units:
// mm cm dm m km, N kN MN, Pa kPa MPa GPa, deg (also written as the degree sign) and rad,
// so "2*500mm" is 1 and "sin(30deg)" is 0.5. White space between tokens is ignored.
//
// Thread-safe: every thread evaluates with a parser of its own.
class HOSTKIT_EXPORT Calculator
{
public:
    // True when expression is valid and its value is finite; value is written only then.
    // Never throws.
    static bool Evaluate(const std::wstring& expression, double& value);
};

} // namespace Orvo::Kernel::Framework
