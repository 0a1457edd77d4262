#pragma once

#include <QString>
#include <QStringList>

namespace Orvo::UI::UIComponents {

// How the lists of the component library compare what a user types with item texts: accents,
// case and the spelling of dashes and quotes do not matter, and the words of a search may come
// in any order ("beam steel" finds "Steel beam").
namespace SearchText {

// The text as comparisons see it.
QString Folded(const QString& text);
// The folded words of a search, empty words dropped.
QStringList Words(const QString& search);

// How well a folded text answers the words of a search, the higher the better; 0 when some word
// does not occur in it. The text as a whole starting with the search beats a word of it starting
// with a search word, which beats a search word found inside a word.
int MatchQuality(const QString& foldedText, const QStringList& words);

} // namespace SearchText

} // namespace Orvo::UI::UIComponents
