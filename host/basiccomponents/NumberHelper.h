#pragma once

#include "HostKitExport.h"

#include <QLocale>
#include <QObject>
#include <QString>

namespace Orvo::UI::BasicComponents {

// Writes doubles the way the user edits them and reads such text back: the one place where
// fields, table cells and filters turn numbers into text and typed text into numbers.
//
// A new helper takes the locale (decimal mark) and the edit decimals from the host's
// NumberFormatSettings at that moment; both can be changed per helper. Create one where numbers
// are written or read (it is cheap), rather than keeping one: the settings can change at any time,
// and Orvo::UI::Events::NumberFormatChanged tells when text written earlier is out of date.
class HOSTKIT_EXPORT NumberHelper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)

public:
    explicit NumberHelper(QObject* parent = nullptr);

    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    QLocale locale() const { return m_locale; }
    // The mark toEditValue writes between whole and decimal digits.
    QString decimalMark() const { return m_locale.decimalPoint(); }
    void setLocale(const QLocale& locale);

    // The edit text of value: the locale's decimal mark, no group separators, at most decimals()
    // decimals with trailing zeros removed ("2.5", not "2.500000"; "3", not "3."). Negative zero
    // is written "0". A value that is not finite has no edit text: the result is empty.
    Q_INVOKABLE QString toEditValue(double value) const;

    // The inverse of toEditValue: the number written in text in the helper's locale, or else with
    // "." or "," as its decimal mark whatever the locale (so "1.5" and "1,5" are one and a half
    // everywhere, as the calculator reads them). Blanks around the number are ignored; group
    // separators, non-finite values and anything else make it fail, with *ok false and 0 returned.
    double fromEditValue(const QString& text, bool* ok = nullptr) const;

signals:
    void decimalsChanged();

private:
    int m_decimals;
    QLocale m_locale;
};

} // namespace Orvo::UI::BasicComponents
