#pragma once

#include <string>
#include <vector>

namespace Orvo::Kernel::Framework {

// One input a running command takes besides picked points (Move: its vector and the number of
// copies; New member: its cross-section): what an input panel shows and lets the user change.
struct CommandInput
{
    enum class Kind
    {
        Number, // a value with a unit, typed as an expression
        Choice, // one of several texts
        Objects, // objects picked in a view, removable one by one
    };

    std::wstring id; // stable within the command
    std::wstring nameId; // text identifier of its label
    std::wstring groupId; // text identifier of the group it is shown in (a foldable container)
    // The kind of group, for filtering: the text identifier of its name (UI_INPUT_CATEGORY_GEOMETRY).
    std::wstring category;
    Kind kind = Kind::Number;
    std::wstring unit; // of a number ("m", "deg"); empty for a pure number
    double number = 0.0;
    std::vector<std::wstring> choices; // text identifiers of a choice's options
    int choice = 0;
    std::vector<int> objects; // object identifiers of the structural model
};

} // namespace Orvo::Kernel::Framework
