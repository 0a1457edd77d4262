#include "GraphicsService.h"

#include "InteractiveViewport.h"

#include <vector>

namespace Orvo::Graphic {

GraphicsService::GraphicsService(std::shared_ptr<Kernel::Framework::StructuralModel> model,
                                 std::shared_ptr<Kernel::Framework::EventBus> eventBus,
                                 std::shared_ptr<const UI::DataModel::Settings> settings)
    : m_eventBus(eventBus)
    , m_settings(settings)
    , m_renderSystem(std::move(settings))
    , m_scene(std::move(model), std::move(eventBus))
{ }

GraphicsService::~GraphicsService() = default;

void GraphicsService::SetResultsSource(std::shared_ptr<const ResultsSource> source)
{
    m_results = std::move(source);
    NotifyResultsChanged();
}

void GraphicsService::NotifyResultsChanged()
{
    std::vector<InteractiveViewport*> viewports;
    {
        std::lock_guard lock(m_viewportsMutex);
        for (const auto& [id, viewport] : m_viewports)
            viewports.push_back(viewport);
    }
    for (InteractiveViewport* viewport : viewports)
        viewport->OnResultsChanged();
}

InteractiveViewport* GraphicsService::FindViewport(int id) const
{
    std::lock_guard lock(m_viewportsMutex);
    const auto it = m_viewports.find(id);
    return it == m_viewports.end() ? nullptr : it->second;
}

int GraphicsService::Register(InteractiveViewport* viewport)
{
    std::lock_guard lock(m_viewportsMutex);
    const int id = m_nextId++;
    m_viewports.emplace(id, viewport);
    return id;
}

void GraphicsService::Unregister(int id)
{
    std::lock_guard lock(m_viewportsMutex);
    m_viewports.erase(id);
}

} // namespace Orvo::Graphic
