#pragma once

#include "HostKitExport.h"
#include "ITableInputTableData.h"
#include "TableWorkstation.h"
#include "framework/EventConnection.h"

#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {
class EventBus;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::Kernel::Tables {

class ObjectTableData;

// Every table the host offers, by workstation: the model's objects ("model"), its loads
// ("loads") and, once a results service adds them, the results ("results"). Keeps the object
// tables in step with the model and announces what changed as a TableDataChangedEvent.
class HOSTKIT_EXPORT TableDataCatalog
{
public:
    static inline const std::wstring c_modelWorkstation = L"model";
    static inline const std::wstring c_loadsWorkstation = L"loads";
    static inline const std::wstring c_resultsWorkstation = L"results";

    // With units, the object tables show quantities in the units the user chose, and follow a
    // new choice.
    TableDataCatalog(std::shared_ptr<Framework::StructuralModel> model,
                     std::shared_ptr<Framework::EventBus> eventBus,
                     std::shared_ptr<const UI::BasicComponents::DisplayUnits> units = nullptr);
    ~TableDataCatalog();
    TableDataCatalog(const TableDataCatalog&) = delete;
    TableDataCatalog& operator=(const TableDataCatalog&) = delete;

    const std::vector<TableWorkstation>& Workstations() const { return m_workstations; }
    const TableWorkstation* FindWorkstation(const std::wstring& id) const;
    std::shared_ptr<ITableData> FindTable(const std::wstring& id) const;
    // The table when it takes edits; null for a read-only one.
    std::shared_ptr<ITableInputTableData> FindInputTable(const std::wstring& id) const;

    // Adds a workstation, or replaces the one of the same id.
    void SetWorkstation(TableWorkstation workstation);

private:
    void FollowModel(const std::vector<Model::ObjectKind>& kinds, bool rowsChanged);

    std::shared_ptr<Framework::StructuralModel> m_model;
    std::shared_ptr<Framework::EventBus> m_eventBus;
    std::vector<TableWorkstation> m_workstations;
    std::vector<std::shared_ptr<ObjectTableData>> m_objectTables;
    std::vector<Model::ObjectKind> m_kindsWithNewRows;
    std::vector<Framework::EventConnection> m_connections;
};

} // namespace Orvo::Kernel::Tables
