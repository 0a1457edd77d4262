#include "TranslationStringLoader.h"

#include "Debug.h"

namespace Orvo::Kernel::Framework {

bool TranslationStringLoader::LoadTable(const std::wstring& table, const QString& directory,
                                        const QString& language)
{
    auto translator = std::make_unique<QTranslator>();
    const QString fileName = QString::fromStdWString(table) + QLatin1Char('_') + language;
    if (!translator->load(fileName, directory)) {
        DebugOutput(QStringLiteral("String table %1 not found in %2").arg(fileName, directory));
        return false;
    }
    m_tables[table] = std::move(translator);
    return true;
}

std::wstring TranslationStringLoader::Load(const StringReference& reference) const
{
    auto it = m_tables.find(reference.table);
    if (it == m_tables.end() || reference.id.empty())
        return reference.id;
    // ID-based catalogues store every message with an empty context and the id as its key.
    const QByteArray key = QString::fromStdWString(reference.id).toUtf8();
    const QString text = it->second->translate("", key.constData());
    return text.isEmpty() ? reference.id : text.toStdWString();
}

} // namespace Orvo::Kernel::Framework
