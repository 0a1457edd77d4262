#pragma once

#include "HostKitExport.h"
#include "IStringLoader.h"

#include <QString>
#include <QTranslator>
#include <map>
#include <memory>

namespace Orvo::Kernel::Framework {

// String tables kept as Qt ID-based translation catalogues (.qm files compiled from .ts
// sources by lrelease). Each table name maps to the catalogue of the current language.
class HOSTKIT_EXPORT TranslationStringLoader : public IStringLoader
{
public:
    // Loads "<table>_<language>.qm" from directory (a file path or a ":/" resource folder).
    // Returns false and keeps the previous catalogue when the file is missing or unreadable.
    bool LoadTable(const std::wstring& table, const QString& directory, const QString& language);

    std::wstring Load(const StringReference& reference) const override;

private:
    std::map<std::wstring, std::unique_ptr<QTranslator>> m_tables;
};

} // namespace Orvo::Kernel::Framework
