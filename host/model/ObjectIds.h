#pragma once

#include "ModelRecords.h"

namespace Orvo::Kernel::Model {

// One id for any object of the model, so that a selection can mix kinds: the kind in the top
// byte, the object's number below it (up to 16,777,215 objects of a kind).
using ObjectId = std::int32_t;

inline constexpr std::int32_t c_numberBits = 24;
inline constexpr Number c_largestNumber = (Number(1) << c_numberBits) - 1;

inline constexpr ObjectId MakeObjectId(ObjectKind kind, Number number)
{
    return (std::int32_t(kind) << c_numberBits) | (number & c_largestNumber);
}

inline constexpr ObjectKind KindOf(ObjectId id)
{
    return ObjectKind(id >> c_numberBits);
}

inline constexpr Number NumberOf(ObjectId id)
{
    return id & c_largestNumber;
}

inline constexpr bool IsKnownKind(ObjectId id)
{
    return id > 0 && (id >> c_numberBits) >= std::int32_t(ObjectKind::Node)
        && (id >> c_numberBits) <= std::int32_t(ObjectKind::Combination);
}

} // namespace Orvo::Kernel::Model
