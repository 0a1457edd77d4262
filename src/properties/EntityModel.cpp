#include "EntityModel.h"

#include "PropertiesLogging.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::ObjectId;

EntityModel::EntityModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

int EntityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entities.size());
}

QVariant EntityModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Entity& entity = m_entities[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return entity.name;
    case countRole:
        return static_cast<int>(entity.objects.size());
    case typeKeyRole:
        return entity.typeKey;
    case isCurrentRole:
        return index.row() == m_currentIndex;
    default:
        return {};
    }
}

QHash<int, QByteArray> EntityModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert({ { nameRole, "nameRole" },
                   { countRole, "countRole" },
                   { typeKeyRole, "typeKeyRole" },
                   { isCurrentRole, "isCurrentRole" } });
    return names;
}

void EntityModel::setCurrentIndex(int index)
{
    if (index == m_currentIndex)
        return;
    if (index < 0 || index >= rowCount()) {
        qCWarning(lcProperties).noquote() << "EntityModel: there is no entry" << index;
        return;
    }
    const int previous = m_currentIndex;
    m_currentIndex = index;
    if (previous >= 0 && previous < rowCount())
        emit dataChanged(this->index(previous), this->index(previous), { isCurrentRole });
    emit dataChanged(this->index(index), this->index(index), { isCurrentRole });
    emit currentIndexChanged();
    emit currentObjectsChanged();
}

void EntityModel::SetObjects(const Kernel::Framework::StructuralModel* model,
                             const std::vector<ObjectId>& ids)
{
    std::vector<std::pair<ObjectId, const Kernel::Framework::ObjectType*>> objects;
    for (ObjectId id : ids) {
        if (const auto* type = model ? model->TypeOf(id) : nullptr)
            objects.push_back({ id, type });
    }
    const QString currentType
        = m_currentIndex >= 0 ? m_entities[static_cast<std::size_t>(m_currentIndex)].typeKey : QString();
    std::vector<Entity> entities;
    std::vector<const Kernel::Framework::ObjectType*> types;
    for (const auto& [id, objectType] : objects) {
        auto type = std::find(types.begin(), types.end(), objectType);
        if (type == types.end()) {
            types.push_back(objectType);
            entities.push_back({ objectType->Key(), QString(), {} });
            type = types.end() - 1;
        }
        entities[static_cast<std::size_t>(type - types.begin())].objects.push_back(id);
    }
    for (std::size_t i = 0; i < entities.size(); ++i)
        entities[i].name
            = GetText(entities[i].objects.size() == 1 ? types[i]->NameId() : types[i]->PluralNameId());
    if (entities.size() > 1) {
        Entity all { QString(), GetText(QStringLiteral("UI_PROPERTIES_ENTITY_ALL")), {} };
        for (const auto& object : objects)
            all.objects.push_back(object.first);
        entities.insert(entities.begin(), std::move(all));
    }

    const int oldCount = rowCount();
    // Kinds come and go with every selection; the list is a handful of rows.
    beginResetModel();
    m_entities = std::move(entities);
    auto kept = std::find_if(m_entities.begin(), m_entities.end(),
                             [&currentType](const Entity& entity) { return entity.typeKey == currentType; });
    const int previousIndex = m_currentIndex;
    if (m_entities.empty())
        m_currentIndex = -1;
    else
        m_currentIndex = kept == m_entities.end() ? 0 : static_cast<int>(kept - m_entities.begin());
    endResetModel();
    if (oldCount != rowCount())
        emit countChanged();
    if (previousIndex != m_currentIndex)
        emit currentIndexChanged();
    emit currentObjectsChanged();
}

std::vector<ObjectId> EntityModel::CurrentObjects() const
{
    if (m_currentIndex < 0)
        return {};
    return m_entities[static_cast<std::size_t>(m_currentIndex)].objects;
}

} // namespace Orvo::UI::UIComponents
