#pragma once

#include "HostKitExport.h"
#include "ITableInputTableData.h"
#include "properties/PropertyValue.h"

#include <memory>
#include <optional>

namespace Orvo::Kernel::Framework {
class ObjectType;
class PropertyDefinition;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::Kernel::Tables {

// The input table of one kind of object: a row per object, a column per property of the kind's
// type. Reads go straight to the model's records (a run of rows is a run of memory); edits go
// through the model, which checks them and records them on the undo stack.
class HOSTKIT_EXPORT ObjectTableData : public ITableInputTableData
{
public:
    // With units, quantities are shown and read in the units the user chose.
    ObjectTableData(std::shared_ptr<Framework::StructuralModel> model, Model::ObjectKind kind,
                    std::shared_ptr<const UI::BasicComponents::DisplayUnits> units = nullptr);

    Model::ObjectKind Kind() const { return m_kind; }
    // The model's objects of this kind changed: the sort order is made anew when next needed.
    void Invalidate() { m_orderStale = true; }

    std::wstring GetId() const override;
    std::wstring GetLabel() const override;
    std::wstring GetIconName() const override;
    bool IsReadOnly() const override { return false; }
    bool HasErrors() const override;
    std::vector<TableDataColumn> GetColumns() const override;
    int GetRowCount() const override;
    std::vector<TableDataColumnContent> GetCells(int first, int count,
                                                 const std::vector<std::wstring>& columnIds) const override;
    bool Sort(const std::wstring& columnId, TableSortOrder order) override;
    std::wstring GetSortColumn() const override { return m_sortColumn; }
    TableSortOrder GetSortOrder() const override { return m_sortOrder; }

    TableUpdateResult Update(const TableDataUpdate& update) override;
    TableUpdateResult RemoveRows(const std::vector<int>& rows) override;
    bool ExecuteAction(int row, const std::wstring& columnId) override;
    Model::ObjectId GetObjectAt(int row) const override;
    int FindRow(Model::ObjectId id) const override;

private:
    const Framework::ObjectType& Type() const;
    const Framework::PropertyDefinition* Property(const std::wstring& columnId) const;
    // The position in the kind's records of the object in a row.
    std::size_t RecordAt(int row) const;
    const std::vector<std::int32_t>& Order() const;
    QString UpdateName(const TableDataUpdate& update, int rowCount) const;
    // The value a cell was given, read as its property's type; refused with the reason otherwise.
    std::optional<Framework::PropertyValue> ParseCell(const Framework::PropertyDefinition& definition,
                                                      int row, const std::wstring& columnId,
                                                      const QVariant& value, TableUpdateResult& result) const;
    void UpdateRow(Model::ObjectId id, int row, const std::map<std::wstring, QVariant>& values,
                   TableUpdateResult& result);
    void AddRow(int row, const std::map<std::wstring, QVariant>& values, TableUpdateResult& result);

    std::shared_ptr<Framework::StructuralModel> m_model;
    Model::ObjectKind m_kind;
    std::shared_ptr<const UI::BasicComponents::DisplayUnits> m_units;
    std::wstring m_sortColumn;
    TableSortOrder m_sortOrder = TableSortOrder::Unsorted;
    // Row -> record position while sorted; empty while unsorted (rows are in number order).
    mutable std::vector<std::int32_t> m_order;
    mutable bool m_orderStale = false;
};

} // namespace Orvo::Kernel::Tables
