#include "MixedValues.h"

#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace Orvo::UI::UIComponents {

namespace {

bool IsNaN(const MixedValues::Value& value)
{
    const auto* number = std::get_if<double>(&value);
    return number && std::isnan(*number);
}

QVariant ToVariant(const MixedValues::Value& value)
{
    return std::visit(
        [](const auto& alternative) -> QVariant {
            using Alternative = std::decay_t<decltype(alternative)>;
            if constexpr (std::is_same_v<Alternative, MixedValues::Action>)
                return QVariantMap { { QString::fromLatin1(MixedValues::c_actionKey), alternative.value } };
            else
                return QVariant::fromValue(alternative);
        },
        value);
}

} // namespace

std::size_t MixedValues::ValueHash::operator()(const Value& value) const
{
    // The alternative's index takes part so that true, 1 and 1.0 land apart; qHash(double) already
    // gives +0.0 and -0.0 the same hash, as they compare equal.
    return std::visit([&value](const auto& alternative) { return qHashMulti(0, value.index(), alternative); },
                      value);
}

bool MixedValues::AddUnique(const Value& value)
{
    if (!m_seen.insert(value).second)
        return false;
    m_values.push_back(value);
    m_variantListCache.clear();
    return true;
}

unsigned int MixedValues::AddUnique(const MixedValues& other)
{
    unsigned int added = 0;
    for (const Value& value : other.m_values) {
        if (AddUnique(value))
            ++added;
    }
    return added;
}

bool MixedValues::RemoveLast()
{
    if (m_values.empty())
        return false;
    EraseFromSeen(m_values.back());
    m_values.pop_back();
    m_variantListCache.clear();
    return true;
}

void MixedValues::EraseFromSeen(const Value& value)
{
    if (!IsNaN(value)) {
        m_seen.erase(value);
        return;
    }
    // A NaN cannot be found by equality; drop one NaN so that seen keeps exactly the held values.
    auto nan = std::find_if(m_seen.begin(), m_seen.end(), IsNaN);
    if (nan != m_seen.end())
        m_seen.erase(nan);
}

const QList<QVariant>& MixedValues::GetVariantList() const
{
    if (m_variantListCache.isEmpty() && !m_values.empty()) {
        m_variantListCache.reserve(static_cast<qsizetype>(m_values.size()));
        for (const Value& value : m_values)
            m_variantListCache.append(ToVariant(value));
    }
    return m_variantListCache;
}

} // namespace Orvo::UI::UIComponents
