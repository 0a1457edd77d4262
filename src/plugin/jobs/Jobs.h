#pragma once

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace Orvo::UI::UIComponents {

// A queue of deferred calls owned by one thread. Any thread may schedule; the owner runs the
// whole batch when it performs the queue. Subclasses decide how the owner learns that a batch
// is waiting (RequestPerform, called once per batch). The queue takes no lock: scheduling from
// another thread must not overlap Perform, which the render loop's synchronisation guarantees.
class Jobs
{
public:
    Jobs();
    explicit Jobs(const std::thread::id& owner);
    Jobs(const Jobs& other);
    Jobs& operator=(const Jobs& other);
    virtual ~Jobs();

    bool IsThisThread() const;
    void Schedule(std::function<void()> job);
    void ScheduleOrRun(std::function<void()> job);

    std::size_t PendingCount() const { return m_pending.size(); }

protected:
    virtual void RequestPerform() = 0;
    void Perform();

    // Lets a deferred request find out whether its queue still exists when it fires.
    std::weak_ptr<void> LifetimeToken() const { return m_lifetime; }

private:
    std::thread::id m_owner;
    std::vector<std::function<void()>> m_pending;
    std::shared_ptr<bool> m_lifetime = std::make_shared<bool>(true);
    bool m_performing = false;
};

} // namespace Orvo::UI::UIComponents
