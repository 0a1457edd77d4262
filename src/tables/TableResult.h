#pragma once

#include "TablePanel.h"

#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The native half of a results table panel: the host's results workstation, its tabs, and the
// shown results table, read from the results database a run of rows at a time as the view
// scrolls (a table of millions of rows costs what is on screen). Read-only; it refills when an
// analysis brings new results.
class TableResult : public Orvo::UI::UIComponents::TablePanel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableResult_Cpp)

public:
    // The most rows read from the database at once: a filter that needs a whole column of a big
    // table gets it in runs of this size rather than in one read of everything.
    static constexpr int c_rowsPerRead = 100 * TableContentModel::c_rowsCountBulk;

    explicit TableResult(QQuickItem* parent = nullptr);
    ~TableResult() override;

protected:
    bool OffersWorkstation(const Kernel::Tables::TableWorkstation& workstation) const override;
    TableTabsModelItem CreateTabItem(const Kernel::Tables::ITableData& table) const override;
    void DeliverRows(int index, int count, const std::vector<std::wstring>& columnIds) override;
};

} // namespace Orvo::UI::UIComponents
