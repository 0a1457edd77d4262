#pragma once

#include <QString>
#include <QStringList>

namespace Orvo::UI::UIComponents {

// Scores texts against what a user typed into the search, forgiving what people get wrong
// when they type fast: words in another order ("member new"), words cut short ("new mem"),
// typing mistakes (a letter missing, doubled, wrong or two swapped: "memebr", "suport"),
// accents and case. Numbers are not forgiven: "member 12" must not find member 13.
//
// Each search word is matched against the text's words; a text matches when every search word
// found a word of it. The score rewards whole words over beginnings over typo matches, the
// search's order kept, and short texts (an exact name beats a long one that mentions it).
class FuzzyMatcher
{
public:
    explicit FuzzyMatcher(const QString& search = QString());

    bool IsEmpty() const { return m_words.isEmpty(); }
    // 0 when the text does not match, else up to 1000.
    int Score(const QString& text) const;
    // The best score of several texts of one item (its name, synonyms, shortcut).
    int BestScore(const QStringList& texts) const;

    // How many single-letter edits (insert, delete, replace, swap two neighbours) turn a into b.
    static int EditDistance(const QString& a, const QString& b);
    // The edits forgiven in a word of this length: none in short words, where one wrong letter
    // makes another word, more in long ones.
    static int ForgivenEdits(qsizetype length);

private:
    static QStringList TextWords(const QString& foldedText);
    // 0 when the search word does not match the text word.
    static int WordScore(const QString& searchWord, const QString& textWord);

    QStringList m_words;
};

} // namespace Orvo::UI::UIComponents
