#pragma once

#include "HostKitExport.h"
#include "StructureScene.h"
#include "framework/EventConnection.h"

#include <QObject>
#include <functional>
#include <map>
#include <memory>

namespace Orvo::Kernel::Framework {
class EventBus;
class StructuralModel;
struct SelectionChangedEvent;
} // namespace Orvo::Kernel::Framework

namespace Orvo::Graphic {

// The one scene of the structural model that every view draws. It follows the model's
// events on the GUI thread: a burst of changes (a table edit of many cells) rebuilds the
// scene once, from the event loop; a new selection only marks it. Views hear of both.
class HOSTKIT_EXPORT SceneDocument
{
public:
    enum class Change
    {
        Geometry, // objects changed
        Replaced, // a different structure: views frame it anew
        Selection,
    };
    using Listener = std::function<void(Change)>;

    SceneDocument(std::shared_ptr<Kernel::Framework::StructuralModel> model,
                  std::shared_ptr<Kernel::Framework::EventBus> eventBus);
    ~SceneDocument();
    SceneDocument(const SceneDocument&) = delete;
    SceneDocument& operator=(const SceneDocument&) = delete;

    const StructureScene& Scene() const { return m_scene; }
    Kernel::Framework::StructuralModel* Model() const { return m_model.get(); }
    // Rebuilds now if the model changed since (input must not act on a scene that is behind).
    void EnsureCurrent();

    int AddListener(Listener listener);
    void RemoveListener(int id);

private:
    void OnStructureChanged(bool replaced);
    void OnSelectionChanged(const Kernel::Framework::SelectionChangedEvent& event);
    void Rebuild();
    void Notify(Change change);

    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    StructureScene m_scene;
    std::unique_ptr<QObject> m_context;
    std::vector<Kernel::Framework::EventConnection> m_connections;
    std::map<int, Listener> m_listeners;
    int m_nextListener = 1;
    bool m_dirty = false;
    bool m_replaced = false;
    bool m_rebuildPosted = false;
};

} // namespace Orvo::Graphic
