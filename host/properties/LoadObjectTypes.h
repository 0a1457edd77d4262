#pragma once

#include "ObjectType.h"
#include "model/ModelRecords.h"

#include <optional>

namespace Orvo::Kernel::Framework {

// The load types: load cases, the loads of a case on nodes and members, and combinations.
class LoadObjectTypes
{
public:
    static ObjectType CreateLoadCase();
    static ObjectType CreateNodalLoad();
    static ObjectType CreateMemberLoad();
    static ObjectType CreateCombination();

    // A combination written as a sum of factored load cases: "1.35*LC1 + 1.5*LC2" (× or * between
    // factor and case, a missing factor meaning 1). Empty when the text is not such a sum.
    static std::optional<std::vector<std::pair<Model::Number, double>>> ParseCombination(const QString& text);
    static QString FormatCombination(const std::vector<std::pair<Model::Number, double>>& factors);
};

} // namespace Orvo::Kernel::Framework
