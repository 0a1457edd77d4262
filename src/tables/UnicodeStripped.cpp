#include "UnicodeStripped.h"

#include <algorithm>
#include <array>

namespace Orvo::UI::UIComponents {

namespace {

struct Replacement
{
    char16_t character;
    const char16_t* text;
};

// Characters that have no decomposition but that users type differently; sorted by character.
// U+00D8 folds to a lower-case "o" like U+00F8: existing filters rely on it.
constexpr std::array<Replacement, 21> c_replacements { {
    { u'\u00AB', u"\"" }, { u'\u00BB', u"\"" }, { u'\u00C6', u"AE" }, { u'\u00D8', u"o" },
    { u'\u00DF', u"ss" }, { u'\u00E6', u"ae" }, { u'\u00F8', u"o" },  { u'\u0131', u"i" },
    { u'\u0141', u"L" },  { u'\u0142', u"l" },  { u'\u1E9E', u"SS" }, { u'\u2013', u"-" },
    { u'\u2014', u"-" },  { u'\u2015', u"-" },  { u'\u2018', u"'" },  { u'\u2019', u"'" },
    { u'\u201B', u"'" },  { u'\u201C', u"\"" }, { u'\u201D', u"\"" }, { u'\u201E', u"\"" },
    { u'\u2044', u"/" },
} };

constexpr bool IsSortedByCharacter()
{
    for (std::size_t i = 1; i < c_replacements.size(); ++i) {
        if (!(c_replacements[i - 1].character < c_replacements[i].character))
            return false;
    }
    return true;
}
static_assert(IsSortedByCharacter(), "the replacement table is searched by bisection");

// Every replacement is at most two characters long.
constexpr qsizetype c_longestReplacement = 2;

const char16_t* FindReplacement(char16_t character)
{
    const auto found = std::lower_bound(
        c_replacements.begin(), c_replacements.end(), character,
        [](const Replacement& entry, char16_t wanted) { return entry.character < wanted; });
    if (found == c_replacements.end() || found->character != character)
        return nullptr;
    return found->text;
}

bool IsPrintableAscii(char16_t unit)
{
    return unit >= 0x20 && unit < 0x7F;
}

bool IsPlainPrintableAscii(QString const& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return IsPrintableAscii(c.unicode()); });
}

bool IsMarkOrControl(char32_t codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
        return true;
    default:
        return false;
    }
}

char32_t CodePointAt(QString const& text, qsizetype index)
{
    const QChar unit = text.at(index);
    if (unit.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text.at(index + 1));
    return unit.unicode();
}

// Whether the compatibility decomposition of text can be cut before index: the character there
// is a starter whose decomposition begins with a starter, so canonical reordering never moves
// anything across it.
bool StartsDecompositionSegment(QString const& text, qsizetype index)
{
    if (text.at(index).isLowSurrogate())
        return false;
    const char32_t codePoint = CodePointAt(text, index);
    if (QChar::combiningClass(codePoint) != 0)
        return false;
    const QString decomposition = QChar::decomposition(codePoint);
    return decomposition.isEmpty() || QChar::combiningClass(CodePointAt(decomposition, 0)) == 0;
}

// text in compatibility decomposition. QString::normalized shifts the rest of the text for every
// character that decomposes into several, which is quadratic: 1,300 ligatures such as U+FDFA
// (18 characters each) took more than a frame of a keystroke in a filter cell. Decomposing it
// in pieces cut at segment starts gives the same text in linear time.
QString DecomposedCompatibly(QString const& text)
{
    constexpr qsizetype c_pieceLength = 128;
    if (text.size() <= c_pieceLength)
        return text.normalized(QString::NormalizationForm_KD);
    QString decomposed;
    decomposed.reserve(text.size());
    qsizetype begin = 0;
    while (begin < text.size()) {
        qsizetype end = std::min(begin + c_pieceLength, text.size());
        while (end < text.size() && !StartsDecompositionSegment(text, end))
            ++end;
        decomposed += text.sliced(begin, end - begin).normalized(QString::NormalizationForm_KD);
        begin = end;
    }
    return decomposed;
}

} // namespace

QString UnicodeStripped(QString const& text)
{
    // Filtering strips every cell it looks at; nearly all of them are plain ASCII.
    if (IsPlainPrintableAscii(text))
        return text;

    const QString decomposed = DecomposedCompatibly(text);
    QString result;
    result.resize(decomposed.size() * c_longestReplacement);
    char16_t* out = reinterpret_cast<char16_t*>(result.data());
    char16_t* const outBegin = out;

    const char16_t* in = reinterpret_cast<const char16_t*>(decomposed.constData());
    const char16_t* const inEnd = in + decomposed.size();
    while (in != inEnd) {
        const char16_t unit = *in;
        if (IsPrintableAscii(unit)) {
            *out++ = unit;
            ++in;
            continue;
        }
        if (QChar::isHighSurrogate(unit) && in + 1 != inEnd && QChar::isLowSurrogate(in[1])) {
            if (!IsMarkOrControl(QChar::surrogateToUcs4(unit, in[1]))) {
                *out++ = in[0];
                *out++ = in[1];
            }
            in += 2;
            continue;
        }
        ++in;
        if (IsMarkOrControl(unit))
            continue;
        if (const char16_t* replacement = FindReplacement(unit)) {
            for (; *replacement; ++replacement)
                *out++ = *replacement;
        } else {
            *out++ = unit;
        }
    }
    result.truncate(out - outBegin);
    return result;
}

} // namespace Orvo::UI::UIComponents
