#pragma once

#include "HostKitExport.h"
#include "RenderSystem.h"
#include "SceneDocument.h"

#include <map>
#include <memory>
#include <mutex>

namespace Orvo::Kernel::Framework {
class EventBus;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::Graphic {

class InteractiveViewport;
class ResultsSource;

// The host's graphics: the render system, the scene of the structural model that every view
// draws, the analysis's results, and the views themselves, found by their render targets' ids
// (a view's item publishes that id; bars and panels use it to reach the view).
class HOSTKIT_EXPORT GraphicsService
{
public:
    GraphicsService(std::shared_ptr<Kernel::Framework::StructuralModel> model,
                    std::shared_ptr<Kernel::Framework::EventBus> eventBus,
                    std::shared_ptr<const UI::DataModel::Settings> settings);
    ~GraphicsService();
    GraphicsService(const GraphicsService&) = delete;
    GraphicsService& operator=(const GraphicsService&) = delete;

    const RenderSystem& GetRenderSystem() const { return m_renderSystem; }
    SceneDocument& GetScene() { return m_scene; }
    const std::shared_ptr<Kernel::Framework::EventBus>& GetEventBus() const { return m_eventBus; }
    // The user's settings the views follow (their snaps among them); may be null.
    const std::shared_ptr<const UI::DataModel::Settings>& GetSettings() const { return m_settings; }

    // The analysis installs its results here; views redraw with them.
    void SetResultsSource(std::shared_ptr<const ResultsSource> source);
    // The results changed (an analysis ran): views rebuild what they show of them.
    void NotifyResultsChanged();
    std::shared_ptr<const ResultsSource> GetResultsSource() const { return m_results; }

    // The initialised view of that id, or null.
    InteractiveViewport* FindViewport(int id) const;

    // Views enter when they are initialised and leave when invalidated or destroyed.
    int Register(InteractiveViewport* viewport);
    void Unregister(int id);

private:
    std::shared_ptr<Kernel::Framework::EventBus> m_eventBus;
    std::shared_ptr<const UI::DataModel::Settings> m_settings;
    RenderSystem m_renderSystem;
    SceneDocument m_scene;
    std::shared_ptr<const ResultsSource> m_results;
    // Views are initialised and invalidated on render threads, looked up on the GUI thread.
    mutable std::mutex m_viewportsMutex;
    std::map<int, InteractiveViewport*> m_viewports;
    int m_nextId = 1;
};

} // namespace Orvo::Graphic
