#include "ObjectTableOrder.h"

#include "kernel/NaturalTextOrder.h"
#include "properties/StructuralModel.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <string>

namespace Orvo::Kernel::Tables {

using namespace Framework;

namespace {

template<class Key> struct Keys
{
    std::vector<std::optional<Key>> values;

    template<class Less> bool Before(std::int32_t a, std::int32_t b, Less less) const
    {
        const auto& left = values[std::size_t(a)];
        const auto& right = values[std::size_t(b)];
        if (!left || !right)
            return left.has_value() && !right.has_value();
        return less(*left, *right);
    }
};

// A list choice sorts by its text: its rank among the choices' texts in natural order.
std::vector<double> ChoiceRanks(const StructuralModel& model, const PropertyDefinition& definition)
{
    std::vector<std::wstring> texts;
    for (const QString& choiceId : definition.choiceIds)
        texts.push_back(model.PlainText(choiceId).toStdWString());
    std::vector<std::int32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&texts](std::int32_t a, std::int32_t b) {
        return NaturalTextOrder::Before(texts[std::size_t(a)], texts[std::size_t(b)]);
    });
    std::vector<double> ranks(texts.size());
    for (std::size_t rank = 0; rank < order.size(); ++rank)
        ranks[std::size_t(order[rank])] = double(rank);
    return ranks;
}

double NumberOf(const PropertyValue& value, const std::vector<double>& choiceRanks)
{
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag ? 1.0 : 0.0;
    if (const auto* integer = std::get_if<std::int32_t>(&value)) {
        if (choiceRanks.empty())
            return double(*integer);
        return *integer >= 0 && std::size_t(*integer) < choiceRanks.size()
            ? choiceRanks[std::size_t(*integer)]
            : double(choiceRanks.size());
    }
    return std::get<double>(value);
}

std::wstring TextOf(const PropertyValue& value)
{
    if (const auto* color = std::get_if<QColor>(&value))
        return color->name().toStdWString();
    return std::get<QString>(value).toStdWString();
}

} // namespace

std::vector<std::int32_t> ObjectTableOrder::Sorted(const StructuralModel& model, Model::ObjectKind kind,
                                                   const PropertyDefinition& definition, bool descending)
{
    const Model::Structure& structure = model.Structure();
    const std::size_t count = structure.Count(kind);
    std::vector<std::int32_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    const auto sortBy = [&](const auto& keys, auto less) {
        std::stable_sort(order.begin(), order.end(), [&](std::int32_t a, std::int32_t b) {
            return descending ? keys.Before(b, a, less) : keys.Before(a, b, less);
        });
    };
    const auto read = [&](std::size_t index, auto convert) {
        using Key = decltype(convert(PropertyValue()));
        return definition.AppliesTo(structure, index)
            ? std::optional<Key>(convert(definition.read(structure, index)))
            : std::nullopt;
    };

    if (definition.type == PropertyType::String || definition.type == PropertyType::Color) {
        Keys<std::wstring> keys;
        keys.values.reserve(count);
        for (std::size_t index = 0; index < count; ++index)
            keys.values.push_back(read(index, TextOf));
        sortBy(keys,
               [](const std::wstring& a, const std::wstring& b) { return NaturalTextOrder::Before(a, b); });
        return order;
    }
    const std::vector<double> ranks
        = definition.type == PropertyType::List ? ChoiceRanks(model, definition) : std::vector<double>();
    Keys<double> keys;
    keys.values.reserve(count);
    for (std::size_t index = 0; index < count; ++index)
        keys.values.push_back(
            read(index, [&ranks](const PropertyValue& value) { return NumberOf(value, ranks); }));
    sortBy(keys, std::less<double>());
    return order;
}

} // namespace Orvo::Kernel::Tables
