// The integer and real validators of numeric inputs, with bounds, decimals, locale and the
// expression escape taken from the input.
#include "FuzzSupport.h"
#include "valueentry/IntegerValidator.h"
#include "valueentry/RealValidator.h"

#include <QLocale>

using namespace Orvo::UI::UIComponents;

namespace {

const QLocale c_locales[] = { QLocale::c(),
                              QLocale(QLocale::German),
                              QLocale(QLocale::French),
                              QLocale(QLocale::Arabic, QLocale::Egypt),
                              QLocale(QLocale::Hindi),
                              QLocale(QLocale::English, QLocale::UnitedStates) };

void CheckState(QValidator& validator, QString input, int pos)
{
    const QString original = input;
    const QValidator::State state = validator.validate(input, pos);
    FUZZ_CHECK(state == QValidator::Invalid || state == QValidator::Intermediate
               || state == QValidator::Acceptable);
    // Validation judges the text; it neither edits it nor moves the cursor out of it.
    FUZZ_CHECK(input == original);
    FUZZ_CHECK(pos >= 0 && pos <= input.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    FuzzedDataProvider data(bytes, size);
    const QLocale& locale = c_locales[data.ConsumeIntegralInRange<std::size_t>(0, std::size(c_locales) - 1)];
    const bool expressionAllowed = data.ConsumeBool();
    const int bottom = data.ConsumeIntegral<int>();
    const int top = data.ConsumeIntegral<int>();
    const double realBottom = data.ConsumeFloatingPoint<double>();
    const double realTop = data.ConsumeFloatingPoint<double>();
    const int decimals = data.ConsumeIntegralInRange<int>(-3, 1002);
    const bool decimalsAsText = data.ConsumeBool();
    const QString input = Fuzz::RemainingText(data);
    const int pos = int(input.size());
    // The real validator reads the user's locale (the default) besides the C locale.
    QLocale::setDefault(locale);

    IntegerValidator integer;
    integer.setLocale(locale);
    integer.setExpressionAllowed(expressionAllowed);
    integer.setRange(bottom, top);
    CheckState(integer, input, pos);
    if (integer.acceptable(input) && !input.trimmed().startsWith(QLatin1Char('='))) {
        bool ok = false;
        const qlonglong value = locale.toLongLong(input.trimmed(), &ok);
        if (ok)
            FUZZ_CHECK(value >= bottom && value <= top);
    }

    RealValidator real;
    real.setLocale(locale);
    real.setExpressionAllowed(expressionAllowed);
    real.setBottom(realBottom);
    real.setTop(realTop);
    real.setDecimals(decimalsAsText ? QVariant(QStringLiteral("any")) : QVariant(decimals));
    CheckState(real, input, pos);
    real.acceptable(input);
    return 0;
}
