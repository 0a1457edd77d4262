#pragma once

#include "model/Structure.h"

#include <QUndoCommand>
#include <functional>

namespace Orvo::Kernel::Framework {

class StructuralModel;

// One step of the undo stack that replaced the whole structure: it keeps the other structure
// and exchanges the two on undo and redo. Pushing it makes the first exchange.
class StructureReplaceCommand : public QUndoCommand
{
public:
    StructureReplaceCommand(StructuralModel& model, Model::Structure other, std::function<void()> swapped,
                            const QString& text);

    void undo() override { Swap(); }
    void redo() override { Swap(); }

private:
    void Swap();

    StructuralModel& m_model;
    Model::Structure m_other;
    std::function<void()> m_swapped;
};

} // namespace Orvo::Kernel::Framework
