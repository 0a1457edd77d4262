#include "NumberFormatSettings.h"

#include "events/NumberFormatChanged.h"
#include "framework/EventBus.h"

#include <algorithm>

namespace Orvo::UI::BasicComponents {

namespace {

// A locale that writes plain numbers as the C locale does but with a decimal comma.
QLocale DecimalCommaLocale()
{
    return QLocale(QLocale::German, QLocale::Germany);
}

} // namespace

NumberFormatSettings::NumberFormatSettings(std::weak_ptr<Kernel::Framework::EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{ }

QLocale NumberFormatSettings::GetLocale() const
{
    return m_locale.value_or(QLocale());
}

void NumberFormatSettings::SetLocale(const QLocale& locale)
{
    if (m_locale == locale)
        return;
    m_locale = locale;
    Announce();
}

void NumberFormatSettings::UseApplicationLocale()
{
    if (!m_locale)
        return;
    m_locale.reset();
    Announce();
}

NumberFormatSettings::DecimalMark NumberFormatSettings::GetDecimalMark() const
{
    return GetLocale().decimalPoint() == QLatin1String(",") ? DecimalMark::Comma : DecimalMark::Point;
}

void NumberFormatSettings::SetDecimalMark(DecimalMark mark)
{
    SetLocale(mark == DecimalMark::Comma ? DecimalCommaLocale() : QLocale::c());
}

void NumberFormatSettings::SetEditDecimals(int decimals)
{
    decimals = std::clamp(decimals, 0, c_maximumEditDecimals);
    if (m_editDecimals == decimals)
        return;
    m_editDecimals = decimals;
    Announce();
}

void NumberFormatSettings::Announce() const
{
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(Events::NumberFormatChanged());
}

} // namespace Orvo::UI::BasicComponents
