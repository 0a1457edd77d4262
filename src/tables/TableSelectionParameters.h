#pragma once

#include "TableCellContent.h"

#include <QList>
#include <QSet>
#include <QStringList>
#include <QVariantList>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// The named values that every selected editable cell can take (the intersection of their
// parameter names, in the first cell's order) and which of them the cells use now: what the
// multi-edit bar offers for a selection. Fed one cell at a time, so a caller can stop early.
class TableSelectionParameters
{
public:
    // Forgets the last result; cells are added next.
    void Begin();
    // Takes one selected editable cell into account. False once the intersection is empty, as
    // no further cell can add to it.
    bool Add(const TableCellContent& cell);
    // Fixes the result of the cells added since Begin().
    void End();
    // The whole round for the selected record cells of a model that the user may edit.
    void Collect(const TableContentModel& model);

    const QStringList& Names() const { return m_names; }
    const QVariantList& Values() const { return m_values; }
    const QList<int>& SelectedIndices() const { return m_selectedIndices; }

private:
    QStringList m_names;
    QVariantList m_values;
    QList<int> m_selectedIndices;
    QSet<QString> m_usedNames;
    bool m_started = false;
};

} // namespace Orvo::UI::UIComponents
