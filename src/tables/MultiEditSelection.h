#pragma once

#include "TableContentUpdate.h"

#include <QString>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// One multi-edit operator applied to every selected editable record cell of a content model:
// the edits it makes, for the model to queue. Cells the operator leaves as they are get none.
class MultiEditSelection
{
public:
    explicit MultiEditSelection(const TableContentModel& model);

    TableContentUpdate Edits(int action, const QString& operand) const;

private:
    const TableContentModel& m_model;
};

} // namespace Orvo::UI::UIComponents
