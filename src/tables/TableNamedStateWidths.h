#pragma once

#include <QObject>
#include <QStringList>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// Check-box columns whose values have named states (Yes/No) need room for the names: such a
// column gets a minimum width once content shows it has them. Content delivered while the filter
// proxy tests a row must not change a header, as the proxy would rebuild the row mapping it is
// building; those columns are widened once the filtering is over.
class TableNamedStateWidths : public QObject
{
    Q_OBJECT

public:
    static constexpr int c_minWidth = 128;

    explicit TableNamedStateWidths(TableContentModel& model);

    void Widen(const std::vector<int>& columns);

private:
    void WidenPostponed();

    TableContentModel& m_model;
    QStringList m_postponed; // column ids
};

} // namespace Orvo::UI::UIComponents
