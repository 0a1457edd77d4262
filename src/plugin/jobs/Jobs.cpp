#include "Jobs.h"

#include <QtGlobal>

#include <iterator>
#include <utility>

namespace Orvo::UI::UIComponents {

Jobs::Jobs()
    : m_owner(std::this_thread::get_id())
{ }

Jobs::Jobs(const std::thread::id& owner)
    : m_owner(owner)
{ }

Jobs::Jobs(const Jobs& other)
    : m_owner(other.m_owner)
    , m_pending(other.m_pending)
{ }

Jobs& Jobs::operator=(const Jobs& other)
{
    m_owner = other.m_owner;
    m_pending = other.m_pending;
    return *this;
}

Jobs::~Jobs()
{
    *m_lifetime = false;
}

bool Jobs::IsThisThread() const
{
    return std::this_thread::get_id() == m_owner;
}

void Jobs::Schedule(std::function<void()> job)
{
    m_pending.push_back(std::move(job));
    // One request per batch. A call scheduled while the batch runs belongs to no batch:
    // it is dropped when the batch ends, so it must not ask for another pass either.
    if (m_pending.size() == 1 && !m_performing)
        RequestPerform();
}

void Jobs::ScheduleOrRun(std::function<void()> job)
{
    if (IsThisThread())
        job();
    else
        Schedule(std::move(job));
}

void Jobs::Perform()
{
    // Calls scheduled from other threads are only safe because the owner alone performs them.
    Q_ASSERT_X(IsThisThread(), "Jobs::Perform", "a queue is performed by the thread that owns it");
    // The batch is moved out before it runs, so a call may destroy this queue (the viewport's
    // release job does) without pulling the storage from under the loop.
    std::shared_ptr<bool> alive = m_lifetime;
    std::vector<std::function<void()>> batch;
    batch.swap(m_pending);
    m_performing = true;
    try {
        for (auto& job : batch)
            job();
    } catch (...) {
        // A throwing call leaves the whole batch pending, as if it had never been taken out,
        // with anything scheduled meanwhile behind it; no new request is made for it.
        if (*alive) {
            batch.insert(batch.end(), std::make_move_iterator(m_pending.begin()),
                         std::make_move_iterator(m_pending.end()));
            m_pending = std::move(batch);
            m_performing = false;
        }
        throw;
    }
    if (*alive) {
        m_pending.clear();
        m_performing = false;
    }
}

} // namespace Orvo::UI::UIComponents
