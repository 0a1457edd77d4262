#pragma once

#include "HostKitExport.h"
#include "ModelMessage.h"
#include "Structure.h"

#include <QByteArray>
#include <QString>

namespace Orvo::Kernel::Model {

// Why a model file could not be read or written: the message, and the object of the file it is
// about when there is one ("Member 4: there is no node 99").
struct HOSTKIT_EXPORT ModelFileError
{
    ModelMessage message;
    ObjectId object = 0;

    bool IsEmpty() const { return message.IsEmpty(); }
    explicit operator bool() const { return !message.IsEmpty(); }
    QString ToText(const Framework::IStringLoader* loader) const;
};

// The structural model as a file: one JSON document with a format name and version and one list
// per kind of object. Enumerations are written by name, not by number, so that the files stay
// readable and survive reordering the enumerations.
//
// Reading is all or nothing: the file is read into a structure of its own, every object is
// checked with the rules the structure keeps (StructureValidator), and only a file that passes
// them all is handed over. Unknown keys are ignored, so that a later version of the same format
// can add to it; a file of a higher version is refused rather than half understood.
class HOSTKIT_EXPORT ModelFile
{
public:
    static constexpr int c_formatVersion = 1;
    static constexpr const char* c_formatName = "QtComponents structural model";
    // "qcm": QtComponents model. Short, and not taken by a common application.
    static inline const QString c_extension = QStringLiteral("qcm");

    static QByteArray ToJson(const Structure& structure);
    // Replaces `structure` with the file's model; leaves it untouched on error.
    static ModelFileError FromJson(const QByteArray& json, Structure& structure);

    // Writes the whole file or nothing (the previous file stays when writing fails).
    static ModelFileError Save(const Structure& structure, const QString& path);
    static ModelFileError Load(const QString& path, Structure& structure);

    // Whether the path names a model file, judged by its extension.
    static bool IsModelFileName(const QString& path);
};

} // namespace Orvo::Kernel::Model
