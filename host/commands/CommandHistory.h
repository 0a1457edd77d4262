#pragma once

#include "HostKitExport.h"
#include "framework/EventConnection.h"

#include <QDateTime>
#include <QObject>

#include <deque>
#include <memory>
#include <string>

namespace Orvo::Kernel::Framework {

class EventBus;

// One command the application ran.
struct CommandRecord
{
    std::wstring commandUuid;
    std::wstring parameterString;
    std::wstring origin;
    QDateTime time;
};

// The commands the application ran since it started, the latest c_capacity of them, oldest
// first: a service of the catalog, listening from the start, so that a view opened later (a
// command log, a status line) still shows what ran before it existed.
class HOSTKIT_EXPORT CommandHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t c_capacity = 200;

    explicit CommandHistory(const std::shared_ptr<EventBus>& eventbus);

    const std::deque<CommandRecord>& GetRecords() const { return m_records; }

signals:
    // Around each change, so that a model can announce it before and after: when the history is
    // full, the oldest record is dropped first; then the new one is appended.
    void oldestAboutToBeDropped();
    void oldestDropped();
    void recordAboutToBeAdded();
    void recordAdded();

private:
    std::deque<CommandRecord> m_records;
    EventConnection m_connection;
};

} // namespace Orvo::Kernel::Framework
