#include "SearchText.h"

#include "tables/UnicodeStripped.h"

namespace Orvo::UI::UIComponents::SearchText {

QString Folded(const QString& text)
{
    return UnicodeStripped(text).toCaseFolded();
}

QStringList Words(const QString& search)
{
    return Folded(search).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

namespace {

bool StartsWord(const QString& text, qsizetype position)
{
    return position == 0 || !text.at(position - 1).isLetterOrNumber();
}

// 3 when the word begins a word of the text, 1 when it is only inside one, 0 when absent.
int WordQuality(const QString& text, const QString& word)
{
    int best = 0;
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        best = std::max(best, StartsWord(text, at) ? 3 : 1);
        if (best == 3)
            break;
    }
    return best;
}

} // namespace

int MatchQuality(const QString& foldedText, const QStringList& words)
{
    if (words.isEmpty())
        return 1;
    int quality = 0;
    for (const QString& word : words) {
        const int wordQuality = WordQuality(foldedText, word);
        if (wordQuality == 0)
            return 0;
        quality += wordQuality;
    }
    // The whole search typed as the start of the text ranks above everything else.
    if (foldedText.startsWith(words.join(QLatin1Char(' '))))
        quality += 100;
    if (foldedText == words.join(QLatin1Char(' ')))
        quality += 100;
    return quality;
}

} // namespace Orvo::UI::UIComponents::SearchText
