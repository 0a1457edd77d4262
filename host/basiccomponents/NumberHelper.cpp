#include "NumberHelper.h"

#include "NumberFormatSettings.h"
#include "framework/ServiceCatalog.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Orvo::UI::BasicComponents {

namespace {

NumberFormatSettings CurrentSettings()
{
    auto settings = Kernel::Framework::ServiceCatalog::Global()->Get<NumberFormatSettings>();
    return settings ? *settings : NumberFormatSettings();
}

std::optional<double> ParseIn(QLocale locale, const QString& text)
{
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double value = locale.toDouble(text, &ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

NumberHelper::NumberHelper(QObject* parent)
    : QObject(parent)
{
    const NumberFormatSettings settings = CurrentSettings();
    m_decimals = settings.GetEditDecimals();
    m_locale = settings.GetLocale();
}

void NumberHelper::setDecimals(int decimals)
{
    decimals = std::clamp(decimals, 0, NumberFormatSettings::c_maximumEditDecimals);
    if (m_decimals == decimals)
        return;
    m_decimals = decimals;
    emit decimalsChanged();
}

void NumberHelper::setLocale(const QLocale& locale)
{
    m_locale = locale;
}

QString NumberHelper::toEditValue(double value) const
{
    if (!std::isfinite(value))
        return {};

    QLocale locale = m_locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = locale.toString(value, 'f', m_decimals);

    const QString decimalPoint = locale.decimalPoint();
    const qsizetype pointAt = text.indexOf(decimalPoint);
    if (pointAt >= 0) {
        const QString zero = locale.zeroDigit();
        while (text.endsWith(zero) && text.size() > pointAt + decimalPoint.size())
            text.chop(zero.size());
        if (text.endsWith(decimalPoint))
            text.chop(decimalPoint.size());
    }
    // Rounding can leave "-0" from a tiny negative value; an edit field shows it as zero.
    if (text == locale.negativeSign() + locale.zeroDigit())
        text = locale.zeroDigit();
    return text;
}

double NumberHelper::fromEditValue(const QString& text, bool* ok) const
{
    const QString trimmed = text.trimmed();
    std::optional<double> value = ParseIn(m_locale, trimmed);
    if (!value)
        value = ParseIn(QLocale::c(), QString(trimmed).replace(QLatin1Char(','), QLatin1Char('.')));
    if (ok)
        *ok = value.has_value();
    return value.value_or(0.0);
}

} // namespace Orvo::UI::BasicComponents
