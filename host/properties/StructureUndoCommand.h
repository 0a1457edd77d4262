#pragma once

#include "model/StructureChange.h"

#include <QUndoCommand>
#include <memory>

namespace Orvo::Kernel::Framework {

class StructuralModel;

// One step of the undo stack: a change the structural model made and recorded. The change is
// made before the step is pushed, so the first redo (which QUndoStack::push calls) does nothing.
class StructureUndoCommand : public QUndoCommand
{
public:
    StructureUndoCommand(StructuralModel& model, std::unique_ptr<Model::StructureChange> change,
                         const QString& text);

    void undo() override;
    void redo() override;

private:
    StructuralModel& m_model;
    std::unique_ptr<Model::StructureChange> m_change;
    bool m_done = true;
};

} // namespace Orvo::Kernel::Framework
