#pragma once

#include "HostKitExport.h"

#include <QLocale>

#include <memory>
#include <optional>

namespace Orvo::Kernel::Framework {
class EventBus;
}

namespace Orvo::UI::BasicComponents {

// The host's number settings: how numbers are written into edit fields and table cells. A service
// of the catalog, so that every NumberHelper follows the same user choice; every change is
// announced with Orvo::UI::Events::NumberFormatChanged.
//
// The decimal mark only decides how numbers are written. Typed numbers are read with either mark
// whatever the setting, as the calculator, the table filters and multi-edit read them, and never
// with group separators.
class HOSTKIT_EXPORT NumberFormatSettings
{
public:
    enum class DecimalMark
    {
        Point,
        Comma,
    };

    static constexpr int c_defaultEditDecimals = 6;
    static constexpr int c_maximumEditDecimals = 15;

    explicit NumberFormatSettings(std::weak_ptr<Kernel::Framework::EventBus> eventbus = {});

    // The locale chosen for numbers, or the application's default locale while none is chosen.
    QLocale GetLocale() const;
    void SetLocale(const QLocale& locale);
    void UseApplicationLocale();

    // The mark of the chosen locale: a comma where it writes one, a point otherwise.
    DecimalMark GetDecimalMark() const;
    // Writes numbers as the C locale does, with the given mark.
    void SetDecimalMark(DecimalMark mark);

    // Decimals shown when a number is put into an edit field, within [0, c_maximumEditDecimals].
    int GetEditDecimals() const { return m_editDecimals; }
    void SetEditDecimals(int decimals);

private:
    void Announce() const;

    std::weak_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::optional<QLocale> m_locale;
    int m_editDecimals = c_defaultEditDecimals;
};

} // namespace Orvo::UI::BasicComponents
