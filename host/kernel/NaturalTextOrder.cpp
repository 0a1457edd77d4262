#include "NaturalTextOrder.h"

#include <QChar>
#include <locale>
#include <string>

namespace Orvo::Kernel {

namespace {

bool IsDecimalDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// A walk over the runs of two texts. Each Compare...Runs call compares the runs at the current
// positions and moves both positions past them; it returns a negative number when a's run sorts
// first, a positive one when b's does, and 0 when they are equal.
class RunWalk
{
public:
    RunWalk(std::wstring_view a, std::wstring_view b)
        : m_a(a)
        , m_b(b)
    { }

    bool BothLeft() const { return m_positionA < m_a.size() && m_positionB < m_b.size(); }
    bool OnlyBLeft() const { return m_positionA == m_a.size() && m_positionB < m_b.size(); }
    bool BothAtDigits() const { return IsDecimalDigit(m_a[m_positionA]) && IsDecimalDigit(m_b[m_positionB]); }

    // Numbers of any length: leading zeros do not count, fewer digits is smaller, equally long
    // numbers are decided by their first different digit.
    int CompareNumberRuns()
    {
        SkipZeros(m_a, m_positionA);
        SkipZeros(m_b, m_positionB);
        int firstDifference = 0;
        while (true) {
            const bool moreA = At(m_a, m_positionA, true);
            const bool moreB = At(m_b, m_positionB, true);
            if (!moreA || !moreB)
                return moreA != moreB ? int(moreA) - int(moreB) : firstDifference;
            if (firstDifference == 0 && m_a[m_positionA] != m_b[m_positionB])
                firstDifference = m_a[m_positionA] < m_b[m_positionB] ? -1 : 1;
            ++m_positionA;
            ++m_positionB;
        }
    }

    int CompareTextRuns(const std::ctype<wchar_t>& ctype, const std::collate<wchar_t>& collate)
    {
        const std::wstring_view runA = TakeTextRun(m_a, m_positionA);
        const std::wstring_view runB = TakeTextRun(m_b, m_positionB);
        if (runA.empty() || runB.empty())
            return int(!runA.empty()) - int(!runB.empty());
        std::wstring upperA(runA);
        std::wstring upperB(runB);
        ctype.toupper(upperA.data(), upperA.data() + upperA.size());
        ctype.toupper(upperB.data(), upperB.data() + upperB.size());
        return collate.compare(upperA.data(), upperA.data() + upperA.size(), upperB.data(),
                               upperB.data() + upperB.size());
    }

    // The classic locale collates by character value, so runs compare in place, character by
    // character, without upper-cased copies: this runs for every cell of a filtered column.
    int CompareTextRunsClassic()
    {
        while (true) {
            const bool moreA = At(m_a, m_positionA, false);
            const bool moreB = At(m_b, m_positionB, false);
            if (!moreA || !moreB)
                return int(moreA) - int(moreB);
            const wchar_t upperA = ToUpperClassic(m_a[m_positionA]);
            const wchar_t upperB = ToUpperClassic(m_b[m_positionB]);
            if (upperA != upperB)
                return upperA < upperB ? -1 : 1;
            ++m_positionA;
            ++m_positionB;
        }
    }

private:
    static bool At(std::wstring_view text, std::size_t position, bool digit)
    {
        return position < text.size() && IsDecimalDigit(text[position]) == digit;
    }

    static void SkipZeros(std::wstring_view text, std::size_t& position)
    {
        while (position < text.size() && text[position] == L'0')
            ++position;
    }

    static std::wstring_view TakeTextRun(std::wstring_view text, std::size_t& position)
    {
        const std::size_t start = position;
        while (At(text, position, false))
            ++position;
        return text.substr(start, position - start);
    }

    // The classic locale knows only ASCII letters. Filters ignore case for every letter (the
    // contains-match does too), so other characters take Unicode's upper case.
    static wchar_t ToUpperClassic(wchar_t c)
    {
        if (c < 0x80)
            return (c >= L'a' && c <= L'z') ? wchar_t(c - L'a' + L'A') : c;
        return wchar_t(QChar::toUpper(char32_t(c)));
    }

    std::wstring_view m_a;
    std::wstring_view m_b;
    std::size_t m_positionA = 0;
    std::size_t m_positionB = 0;
};

// The locale is read once: the host does not change it while tables filter.
struct LocaleRules
{
    LocaleRules()
        : ctype(std::use_facet<std::ctype<wchar_t>>(locale))
        , collate(std::use_facet<std::collate<wchar_t>>(locale))
        , isClassic(locale == std::locale::classic())
    { }

    const std::locale locale;
    const std::ctype<wchar_t>& ctype;
    const std::collate<wchar_t>& collate;
    const bool isClassic;
};

} // namespace

bool NaturalTextOrder::Before(std::wstring_view a, std::wstring_view b)
{
    static const LocaleRules rules;
    RunWalk walk(a, b);
    while (walk.BothLeft()) {
        int order = 0;
        if (walk.BothAtDigits())
            order = walk.CompareNumberRuns();
        else if (rules.isClassic)
            order = walk.CompareTextRunsClassic();
        else
            order = walk.CompareTextRuns(rules.ctype, rules.collate);
        if (order != 0)
            return order < 0;
    }
    return walk.OnlyBLeft();
}

} // namespace Orvo::Kernel
