#pragma once

#include "framework/EventBus.h"

#include <vector>

// Records every event of one type posted on a bus while it lives.
template<class Event> class EventRecorder
{
public:
    explicit EventRecorder(Orvo::Kernel::Framework::EventBus& eventbus)
        : m_connection(eventbus.Subscribe<Event>([this](const Event& event) { m_events.push_back(event); }))
    { }

    const std::vector<Event>& Events() const { return m_events; }
    std::size_t Count() const { return m_events.size(); }
    const Event& Last() const { return m_events.back(); }
    void Clear() { m_events.clear(); }

private:
    std::vector<Event> m_events; // declared first: the subscription ends before the list goes
    Orvo::Kernel::Framework::EventConnection m_connection;
};
