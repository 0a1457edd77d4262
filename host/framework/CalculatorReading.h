#pragma once

#include "HostKitExport.h"

#include <limits>
#include <string>

namespace Orvo::Kernel::Framework {

// What an expression typed into a field stands for in the field's unit: "=30cm" in a millimetre
// field is 300; "=5kN" there is no value at all but the message "kN is a force; this field takes
// a length". An expression without units is read in the field's unit ("=2*150" is 300 mm), one
// with units is worked out in SI and converted. A field unit the calculator does not know
// ("pcs") counts as a plain number.
struct HOSTKIT_EXPORT CalculatorReading
{
    bool valid = false;
    // In the field's unit; NaN unless valid.
    double value = std::numeric_limits<double>::quiet_NaN();
    // Why there is no value, in the user's language; empty when valid.
    std::wstring message;

    static CalculatorReading Evaluate(const std::wstring& expression, const std::wstring& fieldUnit);
};

} // namespace Orvo::Kernel::Framework
