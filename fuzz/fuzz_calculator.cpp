// The host calculator and the inline calculator of numeric inputs, in single and multiple mode
// with separators taken from the input.
#include "FuzzSupport.h"
#include "framework/Calculator.h"
#include "valueentry/InlineCalculator.h"

#include <cmath>

using namespace Orvo::UI::UIComponents;
using Orvo::Kernel::Framework::Calculator;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    FuzzedDataProvider data(bytes, size);
    QStringList separators;
    const int separatorCount = data.ConsumeIntegralInRange(0, 3);
    for (int i = 0; i < separatorCount; ++i)
        separators.append(Fuzz::Text(data, 3));
    const QString expression = Fuzz::RemainingText(data);
    const std::wstring wide = expression.toStdWString();

    double value = 12345.0;
    const bool valid = Calculator::Evaluate(wide, value);
    FUZZ_CHECK(!valid || std::isfinite(value));
    const std::optional quantity = Calculator::EvaluateQuantity(wide);
    FUZZ_CHECK(quantity.has_value() == valid);

    InlineCalculator single;
    single.setExpression(expression);
    FUZZ_CHECK(single.isValid() == valid);
    FUZZ_CHECK(!single.isValid() || std::isfinite(single.getResult()));

    InlineCalculator multiple;
    multiple.setMultipleEnabled(true);
    multiple.setSeparators(separators);
    multiple.setExpression(expression);
    FUZZ_CHECK(multiple.getMultipleValids().size() == multiple.getMultipleResults().size());
    for (qsizetype i = 0; i < multiple.getMultipleValids().size(); ++i) {
        if (multiple.getMultipleValids()[i])
            FUZZ_CHECK(std::isfinite(multiple.getMultipleResults()[i]));
    }
    return 0;
}
