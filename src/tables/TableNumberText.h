#pragma once

#include "basiccomponents/NumberHelper.h"

#include <QString>
#include <optional>

namespace Orvo::UI::UIComponents {

// Numbers as a user types and reads them in table cells: typed text is an expression for the host
// calculator ("2*500mm", "1,5"), shown text is the host number helper's edit form. One instance
// serves a whole operation (a copy of many cells) with the number settings of its start.
class TableNumberText
{
public:
    TableNumberText() = default;

    // The value of a typed number or expression; nullopt when the text is not one.
    static std::optional<double> Parse(const QString& text);
    QString ToEditText(double value) const { return m_helper.toEditValue(value); }

private:
    BasicComponents::NumberHelper m_helper;
};

} // namespace Orvo::UI::UIComponents
