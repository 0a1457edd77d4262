#include "NumberFormatSettings.h"

#include <algorithm>

namespace Orvo::UI::BasicComponents {

QLocale NumberFormatSettings::GetLocale() const
{
    return m_locale.value_or(QLocale());
}

void NumberFormatSettings::SetLocale(const QLocale& locale)
{
    m_locale = locale;
}

void NumberFormatSettings::UseApplicationLocale()
{
    m_locale.reset();
}

void NumberFormatSettings::SetEditDecimals(int decimals)
{
    m_editDecimals = std::clamp(decimals, 0, c_maximumEditDecimals);
}

} // namespace Orvo::UI::BasicComponents
