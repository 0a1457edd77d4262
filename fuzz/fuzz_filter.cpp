// A column filter text, made into a condition and asked of cells of every value type. The
// remaining input becomes the cells' values, so numbers, texts and named values vary too.
#include "FuzzSupport.h"
#include "tables/FilterConditionFactory.h"
#include "tables/TableCellContent.h"

#include <limits>

using namespace Orvo::UI::UIComponents;

namespace {

TableCellContent Cell(TableValueType type, QVariant value, std::optional<std::int16_t> decimals = {})
{
    TableCellContent cell;
    cell.valueType = type;
    cell.content = std::move(value);
    cell.decimals = decimals;
    return cell;
}

std::vector<TableCellContent> Cells(FuzzedDataProvider& data)
{
    const double real = data.ConsumeFloatingPoint<double>();
    const auto decimals = data.ConsumeIntegralInRange<std::int16_t>(-2, 20);
    const auto integer = data.ConsumeIntegral<std::int64_t>();
    const int parameterIndex = data.ConsumeIntegralInRange<int>(-2, 3);
    const QString text = Fuzz::Text(data, 256);
    const QStringList names = text.split(QLatin1Char('|'));

    TableCellContent color = Cell(TableValueType::Color, text);
    color.text = names.value(0);
    TableCellContent list = Cell(TableValueType::List, text);
    list.allValues = names;
    TableCellContent parameter = Cell(TableValueType::Bool, QVariant());
    parameter.parametersNames = names;
    for (int i = 0; i < names.size(); ++i)
        parameter.parametersValues.append(i % 2 == 0);
    parameter.parameterIndex = parameterIndex;
    TableCellContent namedReal = parameter;
    namedReal.valueType = TableValueType::Real;
    namedReal.parametersValues = { real, -real, 0.0 };

    return { Cell(TableValueType::Unknown, text),
             Cell(TableValueType::Bool, data.ConsumeBool()),
             Cell(TableValueType::Bool, text),
             Cell(TableValueType::Integer, qlonglong(integer)),
             Cell(TableValueType::Integer, int(integer)),
             Cell(TableValueType::Integer, text),
             Cell(TableValueType::Real, real, decimals),
             Cell(TableValueType::Real, real),
             Cell(TableValueType::Real, std::numeric_limits<double>::quiet_NaN(), decimals),
             Cell(TableValueType::Real, text, decimals),
             Cell(TableValueType::String, text),
             Cell(TableValueType::String, real),
             list,
             color,
             parameter,
             namedReal };
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    FuzzedDataProvider data(bytes, size);
    const std::vector<TableCellContent> cells = Cells(data);
    const QString filter = Fuzz::RemainingText(data);
    FilterConditionFactory::IsMalformed(filter);
    const std::unique_ptr<FilterConditionBase> condition
        = FilterConditionFactory::CreateFilterCondition(filter);
    if (!condition)
        return 0;
    for (const TableCellContent& cell : cells) {
        // A condition is a pure function of the cell: asking twice answers the same.
        const bool accepted = condition->Evaluate(cell);
        FUZZ_CHECK(condition->Evaluate(cell) == accepted);
    }
    return 0;
}
