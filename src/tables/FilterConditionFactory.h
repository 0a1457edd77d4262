#pragma once

#include "FilterConditionBase.h"

#include <QString>
#include <memory>

namespace Orvo::UI::UIComponents {

class FilterConditionFactory
{
public:
    // Null for an empty or blank text, otherwise the condition the text describes
    // (an interval, a comparison, or else a contains-match). Never throws.
    static std::unique_ptr<FilterConditionBase> CreateFilterCondition(QString const& text);

    // Whether a text that starts like a comparison or a range is none: it still filters, as a
    // contains-match or against an operand made of operators ("<<<", "["), which is seldom what
    // the user meant, so a view can say so.
    static bool IsMalformed(QString const& text);
};

} // namespace Orvo::UI::UIComponents
