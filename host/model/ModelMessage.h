#pragma once

#include "HostKitExport.h"
#include "ModelRecords.h"
#include "ObjectIds.h"

#include <QString>
#include <variant>
#include <vector>

namespace Orvo::Kernel::Framework {
class IStringLoader;
}

namespace Orvo::Kernel::Model {

// Names an object in a message: "Node 12".
struct ObjectRef
{
    ObjectKind kind;
    Number number;
};

// Something the model tells its user (why a value was refused, why an analysis cannot run): a
// text identifier of the string table with the arguments for its %1, %2, ... An empty
// identifier means "nothing to say".
struct HOSTKIT_EXPORT ModelMessage
{
    using Argument = std::variant<QString, double, ObjectRef>;

    QString id;
    std::vector<Argument> arguments;

    ModelMessage() = default;
    ModelMessage(QString textId, std::vector<Argument> args = {});

    bool IsEmpty() const { return id.isEmpty(); }
    explicit operator bool() const { return !id.isEmpty(); }

    // The text in the user's language; without a loader, the identifier and its arguments.
    QString ToText(const Framework::IStringLoader* loader) const;

    // The first object the message names, 0 when it names none.
    ObjectId Subject() const;

    static QString KindNameId(ObjectKind kind);
    static QString KindPluralNameId(ObjectKind kind);
};

} // namespace Orvo::Kernel::Model
