#pragma once

#include <QString>

namespace Orvo::Kernel::Framework {

enum class ModelFileOperation
{
    Open,
    Save,
};

// Posted when the structural model was written to its file.
struct ModelFileSavedEvent
{
    QString path;
};

// Posted when a model file replaced the structural model (one step of the undo stack).
struct ModelFileOpenedEvent
{
    QString path;
};

// Posted when a model file could not be opened or written; nothing changed. message says why,
// in the user's language.
struct ModelFileFailedEvent
{
    ModelFileOperation operation = ModelFileOperation::Open;
    QString path;
    QString message;
};

// Posted when a file command ran without naming its file (Open, Save as, the first Save): the
// shell asks the user for one and runs the command again with it.
struct ModelFileNameNeededEvent
{
    ModelFileOperation operation = ModelFileOperation::Open;
    QString suggestedPath;
};

} // namespace Orvo::Kernel::Framework
