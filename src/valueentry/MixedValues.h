#pragma once

#include <QHashFunctions>
#include <QList>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <variant>
#include <vector>

namespace Orvo::UI::UIComponents {

// The distinct values one property holds across the objects of a multi-object edit, in the order in
// which they were first seen. A plain copyable value; the properties model keeps one per property.
class MixedValues
{
public:
    // An entry that is not a property value but an action offered in the same list. Its meaning
    // belongs to the properties panel; here it is only a 32-bit value that takes part in equality.
    struct Action
    {
        std::int32_t value = 0;

        bool operator==(const Action& other) const { return value == other.value; }
        bool operator!=(const Action& other) const { return value != other.value; }
        friend size_t qHash(const Action& action, size_t seed = 0) noexcept
        {
            return ::qHash(action.value, seed);
        }
    };

    // Integers are 32 bits wide whatever the platform's long is, so that stored values and their
    // QML form (int) agree.
    using Integer = std::int32_t;
    using Value = std::variant<bool, Integer, double, QString, Action>;

    // The key under which an Action appears in GetVariantList(): { "action": value }.
    static constexpr const char* c_actionKey = "action";

    MixedValues() = default;

    // Adds value unless an equal value (same alternative, equal with ==) is already held.
    // Returns whether it was new. Every NaN is new, since NaN never equals itself.
    bool AddUnique(const Value& value);
    // Adds every value of other in other's order; returns how many were new.
    unsigned int AddUnique(const MixedValues& other);
    // Forgets the most recently added value; false when there is none.
    bool RemoveLast();

    std::size_t GetCount() const { return m_values.size(); }
    // The values as QVariants, built once per change. The reference stays valid until the next change.
    const QList<QVariant>& GetVariantList() const;

private:
    struct ValueHash
    {
        std::size_t operator()(const Value& value) const;
    };

    void EraseFromSeen(const Value& value);

    std::vector<Value> m_values;
    std::unordered_set<Value, ValueHash> m_seen;
    mutable QList<QVariant> m_variantListCache;
};

} // namespace Orvo::UI::UIComponents
