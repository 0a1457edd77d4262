#pragma once

#include "HostKitExport.h"
#include "framework/EventConnection.h"

#include <QString>
#include <QStringList>
#include <filesystem>
#include <memory>

namespace Orvo::Kernel::Framework {

class EventBus;

// The files the user opened or saved last, most recent first, kept between sessions in a text
// file of the user's configuration (one path a line). A command that opens or saves a file
// names it in its parameters ("file=<path>"); every such run puts the file on top, so the list
// follows the commands without each handler having to know about it.
class HOSTKIT_EXPORT RecentFiles
{
public:
    static constexpr int c_capacity = 8;
    static constexpr const wchar_t* c_fileParameter = L"file=";

    RecentFiles(std::filesystem::path storage, const std::shared_ptr<EventBus>& eventbus);

    const QStringList& Files() const { return m_files; }
    // Puts the file on top (moving it when listed already); an empty path is ignored.
    void Add(const QString& file);
    // Forgets a file (one that could not be opened any more); false when it was not listed.
    bool Remove(const QString& file);
    void Clear();

    // The file a command's parameters name, or an empty text.
    static QString FileOfParameters(const std::wstring& parameterString);

private:
    void Read();
    void Changed();

    std::filesystem::path m_storage;
    std::weak_ptr<EventBus> m_eventbus;
    QStringList m_files;
    EventConnection m_executedConnection;
};

} // namespace Orvo::Kernel::Framework
