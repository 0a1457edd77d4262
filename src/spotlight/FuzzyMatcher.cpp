#include "FuzzyMatcher.h"

#include "common/SearchText.h"

#include <algorithm>
#include <vector>

namespace Orvo::UI::UIComponents {

namespace {

bool IsNumber(const QString& word)
{
    return !word.isEmpty() && std::all_of(word.cbegin(), word.cend(), [](QChar c) { return c.isDigit(); });
}

} // namespace

FuzzyMatcher::FuzzyMatcher(const QString& search)
    : m_words(TextWords(SearchText::Folded(search)))
{ }

QStringList FuzzyMatcher::TextWords(const QString& foldedText)
{
    // Letters and digits make words; a change between them also separates ("m12" is "m 12",
    // "200x100" is "200 x 100"), so that numbers stand on their own.
    QStringList words;
    QString word;
    auto flush = [&] {
        if (!word.isEmpty())
            words << word;
        word.clear();
    };
    for (QChar c : foldedText) {
        if (!c.isLetterOrNumber()) {
            flush();
            continue;
        }
        if (!word.isEmpty() && word.back().isDigit() != c.isDigit())
            flush();
        word += c;
    }
    flush();
    return words;
}

int FuzzyMatcher::EditDistance(const QString& a, const QString& b)
{
    // Optimal string alignment: Levenshtein with the swap of two neighbouring letters.
    const qsizetype n = a.size();
    const qsizetype m = b.size();
    std::vector<std::vector<int>> d(std::size_t(n + 1), std::vector<int>(std::size_t(m + 1), 0));
    for (qsizetype i = 0; i <= n; ++i)
        d[i][0] = int(i);
    for (qsizetype j = 0; j <= m; ++j)
        d[0][j] = int(j);
    for (qsizetype i = 1; i <= n; ++i) {
        for (qsizetype j = 1; j <= m; ++j) {
            const int cost = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            d[i][j] = std::min({ d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost });
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
        }
    }
    return d[n][m];
}

int FuzzyMatcher::ForgivenEdits(qsizetype length)
{
    if (length <= 3)
        return 0;
    return length <= 6 ? 1 : 2;
}

int FuzzyMatcher::WordScore(const QString& searchWord, const QString& textWord)
{
    if (searchWord == textWord)
        return 100;
    if (IsNumber(searchWord) || IsNumber(textWord))
        return 0;
    if (textWord.startsWith(searchWord))
        return 70 + int(20 * searchWord.size() / textWord.size());
    const int forgiven = ForgivenEdits(searchWord.size());
    if (forgiven > 0) {
        // A typo in the whole word, or in the part typed so far.
        const int whole = EditDistance(searchWord, textWord);
        if (whole <= forgiven)
            return 60 - 15 * whole;
        if (textWord.size() > searchWord.size()) {
            const int typed = EditDistance(searchWord, textWord.left(searchWord.size()));
            if (typed <= forgiven)
                return 50 - 15 * typed;
        }
    }
    if (searchWord.size() >= 3 && textWord.contains(searchWord))
        return 35;
    return 0;
}

int FuzzyMatcher::Score(const QString& text) const
{
    if (m_words.isEmpty())
        return 0;
    const QStringList textWords = TextWords(SearchText::Folded(text));
    if (textWords.isEmpty())
        return 0;
    int total = 0;
    int lastPosition = -1;
    int inOrder = 0;
    std::vector<bool> used(std::size_t(textWords.size()), false);
    for (const QString& searchWord : m_words) {
        int best = 0;
        int bestPosition = -1;
        for (int i = 0; i < textWords.size(); ++i) {
            if (used[std::size_t(i)])
                continue;
            const int score = WordScore(searchWord, textWords.at(i));
            if (score > best) {
                best = score;
                bestPosition = i;
            }
        }
        if (best == 0)
            return 0;
        used[std::size_t(bestPosition)] = true;
        total += best;
        if (bestPosition > lastPosition)
            ++inOrder;
        lastPosition = bestPosition;
    }
    const int words = int(m_words.size());
    int score = 8 * total / words; // up to 800
    score += 100 * inOrder / words;
    // Every word of the text found: the text is what was asked for, not something that mentions it.
    const int unmatched = int(textWords.size()) - words;
    score += std::max(0, 100 - 25 * std::max(0, unmatched));
    return std::clamp(score, 1, 1000);
}

int FuzzyMatcher::BestScore(const QStringList& texts) const
{
    int best = 0;
    for (const QString& text : texts)
        best = std::max(best, Score(text));
    return best;
}

} // namespace Orvo::UI::UIComponents
