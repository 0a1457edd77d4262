#include "TableInput.h"

#include "TablesLogging.h"
#include "framework/ServiceCatalog.h"
#include "properties/StructuralModel.h"
#include "tables/TableDataCatalog.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Tables;

TableInput::TableInput(QQuickItem* parent)
    : TablePanel(parent)
{
    TableContentModel& model = *contentModel();
    connect(&model, &TableContentModel::updateDataRequest, this, &TableInput::OnUpdateDataRequest);
    connect(&model, &TableContentModel::executeActionRequest, this, &TableInput::OnExecuteActionRequest);
    connect(model.selectionModel(), &TableSelectionModel::selectionChanged, this,
            &TableInput::ShareSelection);
    model.setAllowEdit(true);
    model.setAllowAddNew(true);
    model.setAllowDelete(true);
    FillWorkstations();
}

TableInput::~TableInput() = default;

bool TableInput::OffersWorkstation(const TableWorkstation& workstation) const
{
    const auto catalog = Catalog();
    return catalog
        && std::any_of(workstation.tables.begin(), workstation.tables.end(), [&catalog](const auto& table) {
               return catalog->FindInputTable(table->GetId()) != nullptr;
           });
}

std::shared_ptr<ITableData> TableInput::FindTable(const QString& id) const
{
    const auto catalog = Catalog();
    auto table = catalog ? catalog->FindInputTable(id.toStdWString()) : nullptr;
    if (!table)
        qCWarning(lcTables).noquote() << "TableInput: the host has no input table" << id;
    return table;
}

void TableInput::OnTableShown(const std::shared_ptr<ITableData>& table)
{
    m_input = std::dynamic_pointer_cast<ITableInputTableData>(table);
    SetMessage({});
}

std::vector<std::shared_ptr<ITableInputTableData>> TableInput::InputTables() const
{
    const auto tables = Catalog();
    std::vector<std::shared_ptr<ITableInputTableData>> inputs;
    if (!tables)
        return inputs;
    for (const TableWorkstation& workstation : tables->Workstations()) {
        for (const auto& table : workstation.tables) {
            if (auto input = tables->FindInputTable(table->GetId()))
                inputs.push_back(std::move(input));
        }
    }
    return inputs;
}

QStringList TableInput::tableIds() const
{
    QStringList ids;
    for (const auto& table : InputTables())
        ids << QString::fromStdWString(table->GetId());
    return ids;
}

QStringList TableInput::tableLabels() const
{
    QStringList labels;
    for (const auto& table : InputTables())
        labels << QString::fromStdWString(table->GetLabel());
    return labels;
}

void TableInput::OnUpdateDataRequest(const TableContentUpdate& update)
{
    if (!m_input)
        return;
    const auto& columns = contentModel()->GetColumns();
    TableDataUpdate data;
    for (const auto& [row, values] : update.GetRows()) {
        for (const auto& [column, value] : values) {
            if (column >= 0 && column < static_cast<int>(columns.size()))
                data[row][columns[static_cast<std::size_t>(column)].id.toStdWString()] = value;
        }
    }
    const TableUpdateResult result = m_input->Update(data);
    Report(result);
    // Nothing changed: the host announces nothing, yet the edits that were refused must go.
    if (!result.Changed())
        Refill();
}

void TableInput::OnExecuteActionRequest(int row, int column)
{
    const auto& columns = contentModel()->GetColumns();
    if (!m_input || column < 0 || column >= static_cast<int>(columns.size()))
        return;
    m_input->ExecuteAction(row, columns[static_cast<std::size_t>(column)].id.toStdWString());
}

void TableInput::ShareSelection()
{
    if (!m_input || IsRefilling())
        return;
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    const auto structuralModel = catalog ? catalog->Get<Kernel::Framework::StructuralModel>() : nullptr;
    if (!structuralModel)
        return;
    const TableContentModel& model = *contentModel();
    const TableSelectionModel& selection = *model.selectionModel();
    const QItemSelectionRange envelope = selection.getEnvelope();
    std::vector<Kernel::Model::ObjectId> ids;
    if (envelope.isValid()) {
        for (int row = envelope.top(); row <= std::min(envelope.bottom(), model.rowCountSubmitted() - 1);
             ++row) {
            bool selected = selection.isRowSelected(row);
            for (int column = envelope.left(); !selected && column <= envelope.right(); ++column)
                selected = selection.isSelected(model.index(row, column));
            if (selected && m_input->GetObjectAt(row) != 0)
                ids.push_back(m_input->GetObjectAt(row));
        }
    }
    // An empty selection of the table leaves the host's as it is: the user may be on the new row.
    if (!ids.empty() && ids != structuralModel->Selection())
        structuralModel->Select(ids);
}

bool TableInput::removeRows(const QList<int>& rows)
{
    if (!m_input)
        return false;
    const TableUpdateResult result = m_input->RemoveRows(std::vector<int>(rows.begin(), rows.end()));
    Report(result);
    return result.removedRows > 0;
}

void TableInput::Report(const TableUpdateResult& result)
{
    if (result.rejections.empty()) {
        SetMessage({});
        return;
    }
    // The reasons name the objects they are about ("There is no node 99").
    SetMessage(result.rejections.front().reason);
}

void TableInput::SetMessage(const QString& message)
{
    if (message == m_message)
        return;
    m_message = message;
    emit messageChanged();
}

} // namespace Orvo::UI::UIComponents
