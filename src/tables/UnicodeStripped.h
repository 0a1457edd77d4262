#pragma once

#include <QString>

namespace Orvo::UI::UIComponents {

// Folds a text the way a user types it, so that both sides of a comparison meet on plain
// characters: compatibility decomposition, accents and control characters dropped, typographic
// dashes and quotes and a few letters without a decomposition replaced. Case is kept.
// Plain printable ASCII comes back unchanged, without a copy.
QString UnicodeStripped(QString const& text);

} // namespace Orvo::UI::UIComponents
