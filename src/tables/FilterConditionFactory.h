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
};

} // namespace Orvo::UI::UIComponents
