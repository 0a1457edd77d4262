#include "TableDataCatalog.h"

#include "ObjectTableData.h"
#include "TableDataEvents.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <algorithm>

namespace Orvo::Kernel::Tables {

using namespace Framework;
using Model::ObjectKind;

namespace {

TableWorkstation Workstation(const StructuralModel& model, std::wstring id, const QString& labelId)
{
    return { id, model.PlainText(labelId).toStdWString(), L"workstation-" + id, {} };
}

} // namespace

TableDataCatalog::TableDataCatalog(std::shared_ptr<StructuralModel> model, std::shared_ptr<EventBus> eventBus,
                                   std::shared_ptr<const UI::BasicComponents::DisplayUnits> units)
    : m_model(std::move(model))
    , m_eventBus(std::move(eventBus))
{
    TableWorkstation structure
        = Workstation(*m_model, c_modelWorkstation, QStringLiteral("UI_TABLES_WORKSTATION_MODEL"));
    TableWorkstation loads
        = Workstation(*m_model, c_loadsWorkstation, QStringLiteral("UI_TABLES_WORKSTATION_LOADS"));
    for (ObjectKind kind : Model::c_allKinds) {
        auto table = std::make_shared<ObjectTableData>(m_model, kind, units);
        m_objectTables.push_back(table);
        const bool isLoad = kind == ObjectKind::LoadCase || kind == ObjectKind::NodalLoad
            || kind == ObjectKind::MemberLoad || kind == ObjectKind::Combination;
        (isLoad ? loads : structure).tables.push_back(std::move(table));
    }
    m_workstations.push_back(std::move(structure));
    m_workstations.push_back(std::move(loads));

    if (!m_eventBus)
        return;
    // The model announces objects added or removed, then the values of the same change: the
    // tables that gained or lost rows hear of it once.
    // Every value of a quantity may be shown in another unit now.
    m_connections.push_back(m_eventBus->Subscribe<UI::Events::DisplayUnitsChanged>(
        [this](const UI::Events::DisplayUnitsChanged&) { FollowModel({}, false); }));
    m_connections.push_back(
        m_eventBus->Subscribe<StructureChangedEvent>([this](const StructureChangedEvent& event) {
            FollowModel(event.kinds, true);
            m_kindsWithNewRows = event.kinds;
        }));
    m_connections.push_back(
        m_eventBus->Subscribe<ObjectValuesChangedEvent>([this](const ObjectValuesChangedEvent& event) {
            std::vector<ObjectKind> kinds;
            for (Model::ObjectId id : event.objects) {
                const bool known = Model::IsKnownKind(id);
                if (known && std::find(kinds.begin(), kinds.end(), Model::KindOf(id)) == kinds.end()
                    && std::find(m_kindsWithNewRows.begin(), m_kindsWithNewRows.end(), Model::KindOf(id))
                        == m_kindsWithNewRows.end())
                    kinds.push_back(Model::KindOf(id));
            }
            m_kindsWithNewRows.clear();
            if (!kinds.empty())
                FollowModel(kinds, false);
        }));
}

TableDataCatalog::~TableDataCatalog() = default;

const TableWorkstation* TableDataCatalog::FindWorkstation(const std::wstring& id) const
{
    const auto it = std::find_if(m_workstations.begin(), m_workstations.end(),
                                 [&id](const TableWorkstation& workstation) { return workstation.id == id; });
    return it == m_workstations.end() ? nullptr : &*it;
}

std::shared_ptr<ITableData> TableDataCatalog::FindTable(const std::wstring& id) const
{
    for (const TableWorkstation& workstation : m_workstations) {
        for (const auto& table : workstation.tables) {
            if (table->GetId() == id)
                return table;
        }
    }
    return nullptr;
}

std::shared_ptr<ITableInputTableData> TableDataCatalog::FindInputTable(const std::wstring& id) const
{
    return std::dynamic_pointer_cast<ITableInputTableData>(FindTable(id));
}

void TableDataCatalog::SetWorkstation(TableWorkstation workstation)
{
    const auto it
        = std::find_if(m_workstations.begin(), m_workstations.end(),
                       [&workstation](const TableWorkstation& known) { return known.id == workstation.id; });
    if (it == m_workstations.end())
        m_workstations.push_back(std::move(workstation));
    else
        *it = std::move(workstation);
}

void TableDataCatalog::FollowModel(const std::vector<ObjectKind>& kinds, bool rowsChanged)
{
    TableDataChangedEvent changed { {}, rowsChanged };
    for (const auto& table : m_objectTables) {
        // No kinds: the whole model was replaced.
        if (!kinds.empty() && std::find(kinds.begin(), kinds.end(), table->Kind()) == kinds.end())
            continue;
        table->Invalidate();
        changed.tableIds.push_back(table->GetId());
    }
    m_eventBus->Post(std::move(changed));
}

} // namespace Orvo::Kernel::Tables
