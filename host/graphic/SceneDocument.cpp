#include "SceneDocument.h"

#include "framework/EventBus.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QMetaObject>

namespace Orvo::Graphic {

using namespace Kernel::Framework;

SceneDocument::SceneDocument(std::shared_ptr<StructuralModel> model, std::shared_ptr<EventBus> eventBus)
    : m_model(std::move(model))
    , m_context(std::make_unique<QObject>())
{
    if (m_model) {
        m_scene.Build(m_model->Structure());
        m_scene.ApplySelection(m_model->Selection());
    }
    if (!eventBus)
        return;
    m_connections.push_back(eventBus->Subscribe<StructureChangedEvent>(
        [this](const StructureChangedEvent& event) { OnStructureChanged(event.kinds.empty()); }));
    m_connections.push_back(eventBus->Subscribe<ObjectValuesChangedEvent>(
        [this](const ObjectValuesChangedEvent&) { OnStructureChanged(false); }));
    m_connections.push_back(eventBus->Subscribe<SelectionChangedEvent>(
        [this](const SelectionChangedEvent& event) { OnSelectionChanged(event); }));
}

SceneDocument::~SceneDocument() = default;

void SceneDocument::EnsureCurrent()
{
    if (m_dirty)
        Rebuild();
}

int SceneDocument::AddListener(Listener listener)
{
    const int id = m_nextListener++;
    m_listeners.emplace(id, std::move(listener));
    return id;
}

void SceneDocument::RemoveListener(int id)
{
    m_listeners.erase(id);
}

void SceneDocument::OnStructureChanged(bool replaced)
{
    m_dirty = true;
    m_replaced = m_replaced || replaced;
    if (m_rebuildPosted)
        return;
    m_rebuildPosted = true;
    QMetaObject::invokeMethod(
        m_context.get(),
        [this]() {
            m_rebuildPosted = false;
            EnsureCurrent();
        },
        Qt::QueuedConnection);
}

void SceneDocument::OnSelectionChanged(const SelectionChangedEvent& event)
{
    // A selection that names objects added in the same burst needs them in the scene.
    EnsureCurrent();
    m_scene.ApplySelection(event.selection);
    Notify(Change::Selection);
}

void SceneDocument::Rebuild()
{
    m_dirty = false;
    const bool replaced = m_replaced;
    m_replaced = false;
    if (!m_model)
        return;
    m_scene.Build(m_model->Structure());
    m_scene.ApplySelection(m_model->Selection());
    Notify(replaced ? Change::Replaced : Change::Geometry);
}

void SceneDocument::Notify(Change change)
{
    // A listener may remove itself (a view going away while it redraws).
    const auto listeners = m_listeners;
    for (const auto& [id, listener] : listeners) {
        if (m_listeners.count(id))
            listener(change);
    }
}

} // namespace Orvo::Graphic
