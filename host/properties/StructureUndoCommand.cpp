#include "StructureUndoCommand.h"

#include "StructuralModel.h"

namespace Orvo::Kernel::Framework {

StructureUndoCommand::StructureUndoCommand(StructuralModel& model,
                                           std::unique_ptr<Model::StructureChange> change,
                                           const QString& text)
    : QUndoCommand(text)
    , m_model(model)
    , m_change(std::move(change))
{ }

void StructureUndoCommand::undo()
{
    m_model.ApplyChange(*m_change, true);
    m_done = false;
}

void StructureUndoCommand::redo()
{
    if (m_done)
        return;
    m_model.ApplyChange(*m_change, false);
    m_done = true;
}

} // namespace Orvo::Kernel::Framework
