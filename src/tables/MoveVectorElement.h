#pragma once

#include <vector>

namespace Orvo::UI::UIComponents {

// Moves the element at srcIndex so that it stands before the element that was at dstIndex
// (dstIndex == size() moves it to the end), the way item models count a column move.
template<typename Element> void MoveVectorElement(std::vector<Element>& vector, int srcIndex, int dstIndex)
{
    const int target = dstIndex > srcIndex ? dstIndex - 1 : dstIndex;
    if (target == srcIndex)
        return;
    Element moved = std::move(vector[static_cast<std::size_t>(srcIndex)]);
    vector.erase(vector.begin() + srcIndex);
    vector.insert(vector.begin() + target, std::move(moved));
}

} // namespace Orvo::UI::UIComponents
