#include "StructureReplaceCommand.h"

#include "StructuralModel.h"

namespace Orvo::Kernel::Framework {

StructureReplaceCommand::StructureReplaceCommand(StructuralModel& model, Model::Structure other,
                                                 std::function<void()> swapped, const QString& text)
    : QUndoCommand(text)
    , m_model(model)
    , m_other(std::move(other))
    , m_swapped(std::move(swapped))
{ }

void StructureReplaceCommand::Swap()
{
    m_model.SwapStructure(m_other);
    if (m_swapped)
        m_swapped();
}

} // namespace Orvo::Kernel::Framework
