#include "NaturalTextOrder.h"

#include <locale>
#include <string>

namespace Orvo::UI::UIComponents {

namespace {

// The locale is read once: the host does not change it while tables filter.
class LocaleRules
{
public:
    LocaleRules()
        : m_ctype(std::use_facet<std::ctype<wchar_t>>(m_locale))
        , m_collate(std::use_facet<std::collate<wchar_t>>(m_locale))
        , m_isClassic(m_locale == std::locale::classic())
    { }

    static const LocaleRules& Instance()
    {
        static const LocaleRules rules;
        return rules;
    }

    // Negative when run a sorts before run b, positive when after, 0 when they are equal.
    int CompareUpperCased(std::wstring_view a, std::wstring_view b) const
    {
        if (a.empty() || b.empty())
            return int(!a.empty()) - int(!b.empty());
        return m_isClassic ? CompareClassic(a, b) : CompareWithCollation(a, b);
    }

private:
    wchar_t ToUpper(wchar_t c) const
    {
        if (m_isClassic && c < 0x80)
            return (c >= L'a' && c <= L'z') ? wchar_t(c - L'a' + L'A') : c;
        return m_ctype.toupper(c);
    }

    // The classic locale collates by character value, so the runs can be compared in place
    // without building upper-cased copies (this runs for every cell of a filtered column).
    int CompareClassic(std::wstring_view a, std::wstring_view b) const
    {
        const std::size_t common = std::min(a.size(), b.size());
        for (std::size_t i = 0; i < common; ++i) {
            const wchar_t upperA = ToUpper(a[i]);
            const wchar_t upperB = ToUpper(b[i]);
            if (upperA != upperB)
                return upperA < upperB ? -1 : 1;
        }
        return int(a.size() > common) - int(b.size() > common);
    }

    int CompareWithCollation(std::wstring_view a, std::wstring_view b) const
    {
        std::wstring upperA(a);
        std::wstring upperB(b);
        m_ctype.toupper(upperA.data(), upperA.data() + upperA.size());
        m_ctype.toupper(upperB.data(), upperB.data() + upperB.size());
        return m_collate.compare(upperA.data(), upperA.data() + upperA.size(), upperB.data(),
                                 upperB.data() + upperB.size());
    }

    const std::locale m_locale;
    const std::ctype<wchar_t>& m_ctype;
    const std::collate<wchar_t>& m_collate;
    const bool m_isClassic;
};

bool IsDecimalDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// The run of characters from position on that are (or are not) decimal digits.
std::wstring_view RunAt(std::wstring_view text, std::size_t position, bool digits)
{
    std::size_t end = position;
    while (end < text.size() && IsDecimalDigit(text[end]) == digits)
        ++end;
    return text.substr(position, end - position);
}

std::wstring_view WithoutLeadingZeros(std::wstring_view digits)
{
    const std::size_t firstNonZero = digits.find_first_not_of(L'0');
    return firstNonZero == std::wstring_view::npos ? std::wstring_view() : digits.substr(firstNonZero);
}

// Fewer significant digits means a smaller number; equally long numbers compare digit by digit.
int CompareNumbers(std::wstring_view a, std::wstring_view b)
{
    a = WithoutLeadingZeros(a);
    b = WithoutLeadingZeros(b);
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

} // namespace

bool NaturalTextOrder::Before(std::wstring_view a, std::wstring_view b)
{
    const LocaleRules& rules = LocaleRules::Instance();
    std::size_t positionA = 0;
    std::size_t positionB = 0;
    while (positionA < a.size() && positionB < b.size()) {
        const bool digits = IsDecimalDigit(a[positionA]) && IsDecimalDigit(b[positionB]);
        const std::wstring_view runA = RunAt(a, positionA, digits);
        const std::wstring_view runB = RunAt(b, positionB, digits);
        const int order = digits ? CompareNumbers(runA, runB) : rules.CompareUpperCased(runA, runB);
        if (order != 0)
            return order < 0;
        positionA += runA.size();
        positionB += runB.size();
    }
    return positionA == a.size() && positionB < b.size();
}

} // namespace Orvo::UI::UIComponents
