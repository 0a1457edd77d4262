#pragma once

#include "HostKitExport.h"

#include <QLocale>

#include <optional>

namespace Orvo::UI::BasicComponents {

// The host's number settings: how numbers are written into edit fields. A service of the
// catalog, so that every NumberHelper follows the same user choice.
class HOSTKIT_EXPORT NumberFormatSettings
{
public:
    static constexpr int c_defaultEditDecimals = 6;
    static constexpr int c_maximumEditDecimals = 15;

    // The locale chosen for numbers, or the application's default locale while none is chosen.
    QLocale GetLocale() const;
    void SetLocale(const QLocale& locale);
    void UseApplicationLocale();

    // Decimals shown when a number is put into an edit field, within [0, c_maximumEditDecimals].
    int GetEditDecimals() const { return m_editDecimals; }
    void SetEditDecimals(int decimals);

private:
    std::optional<QLocale> m_locale;
    int m_editDecimals = c_defaultEditDecimals;
};

} // namespace Orvo::UI::BasicComponents
