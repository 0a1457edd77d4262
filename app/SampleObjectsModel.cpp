#include "SampleObjectsModel.h"

#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QColor>
#include <QLocale>
#include <algorithm>

using namespace Orvo::Kernel::Framework;

namespace {

QString Text(const QString& id)
{
    auto loader = ServiceCatalog::Global()->Get<IStringLoader>();
    if (!loader)
        return id;
    return QString::fromStdWString(
        loader->Load({ id.toStdWString(), DefaultServices::c_componentsStringTable }));
}

// The text of one value, without units.
QString Format(const StructuralObject& object, const QString& key)
{
    const PropertyDefinition* definition = object.Type().FindProperty(key);
    if (!definition)
        return {};
    const PropertyValue value = object.Value(key);
    if (definition->type == PropertyType::List)
        return Text(definition->choiceIds.value(std::get<std::int32_t>(value)));
    if (const auto* number = std::get_if<double>(&value))
        return QLocale().toString(*number, 'f', definition->decimals);
    if (const auto* integer = std::get_if<std::int32_t>(&value))
        return QString::number(*integer);
    if (const auto* flag = std::get_if<bool>(&value))
        return Text(*flag ? "UI_PROPERTIES_YES" : "UI_PROPERTIES_NO");
    return {};
}

} // namespace

SampleObjectsModel::SampleObjectsModel(QObject* parent)
    : QAbstractListModel(parent)
{
    auto catalog = ServiceCatalog::Global();
    m_model = catalog->Get<StructuralModel>();
    if (auto bus = catalog->Get<EventBus>()) {
        m_selectionConnection = bus->Subscribe<SelectionChangedEvent>([this](const SelectionChangedEvent&) {
            RefreshRows(m_rows, { selectedRole });
            emit selectedCountChanged();
        });
        m_valuesConnection = bus->Subscribe<ObjectValuesChangedEvent>(
            [this](const ObjectValuesChangedEvent& event) { RefreshRows(event.objects, {}); });
        m_structureConnection
            = bus->Subscribe<StructureChangedEvent>([this](const StructureChangedEvent&) { Reload(); });
    }
    Reload();
}

SampleObjectsModel::~SampleObjectsModel() = default;

int SampleObjectsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SampleObjectsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid) || !m_model)
        return {};
    const StructuralObject* object = m_model->FindObject(m_rows[static_cast<std::size_t>(index.row())]);
    if (!object)
        return {};
    switch (role) {
    case numberRole:
        return object->Id();
    case typeNameRole:
        return Text(object->Type().NameId());
    case Qt::DisplayRole:
    case nameRole:
        return std::get<QString>(object->Value("general.name"));
    case summaryRole:
        return Summary(*object);
    case colorRole:
        return std::get<QColor>(object->Value("display.color"));
    case selectedRole: {
        const auto& selection = m_model->Selection();
        return std::find(selection.begin(), selection.end(), object->Id()) != selection.end();
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> SampleObjectsModel::roleNames() const
{
    return { { numberRole, "number" },   { typeNameRole, "typeName" }, { nameRole, "name" },
             { summaryRole, "summary" }, { colorRole, "objectColor" }, { selectedRole, "selected" } };
}

int SampleObjectsModel::selectedCount() const
{
    return m_model ? static_cast<int>(m_model->Selection().size()) : 0;
}

void SampleObjectsModel::click(int row, int modifiers)
{
    if (!m_model || row < 0 || row >= rowCount())
        return;
    const ObjectId id = m_rows[static_cast<std::size_t>(row)];
    std::vector<ObjectId> selection = m_model->Selection();
    if (modifiers & Qt::ShiftModifier && m_anchorRow >= 0) {
        const auto [first, last] = std::minmax(m_anchorRow, row);
        selection.assign(m_rows.begin() + first, m_rows.begin() + last + 1);
    } else if (modifiers & Qt::ControlModifier) {
        auto selected = std::find(selection.begin(), selection.end(), id);
        if (selected == selection.end())
            selection.push_back(id);
        else
            selection.erase(selected);
        m_anchorRow = row;
    } else {
        selection = { id };
        m_anchorRow = row;
    }
    m_model->Select(selection);
}

void SampleObjectsModel::selectKind(const QString& typeKey)
{
    if (!m_model)
        return;
    std::vector<ObjectId> selection;
    for (const StructuralObject* object : m_model->Objects()) {
        if (typeKey.isEmpty() || object->Type().Key() == typeKey)
            selection.push_back(object->Id());
    }
    m_model->Select(selection);
}

void SampleObjectsModel::clearSelection()
{
    if (m_model)
        m_model->Select({});
}

void SampleObjectsModel::Reload()
{
    // Objects came or went; the demo's list is short.
    beginResetModel();
    m_rows.clear();
    if (m_model) {
        for (const StructuralObject* object : m_model->Objects())
            m_rows.push_back(object->Id());
    }
    m_anchorRow = -1;
    endResetModel();
}

void SampleObjectsModel::RefreshRows(const std::vector<ObjectId>& ids, const QList<int>& roles)
{
    for (ObjectId id : ids) {
        const int row = RowOf(id);
        if (row >= 0)
            emit dataChanged(index(row), index(row), roles);
    }
}

// The values that tell objects of a kind apart at a glance.
QString SampleObjectsModel::Summary(const StructuralObject& object) const
{
    const QString kind = object.Type().Key();
    const auto value = [&object](const char* key) { return Format(object, QString::fromLatin1(key)); };
    if (kind == QLatin1String("node"))
        return Text("UI_DEMO_NODE_SUMMARY")
            .arg(value("node.x"), value("node.y"), value("node.z"), value("node.supportType"));
    if (kind == QLatin1String("member"))
        return Text("UI_DEMO_MEMBER_SUMMARY")
            .arg(value("member.startNode"), value("member.endNode"), value("member.sectionShape"),
                 value("member.height"), value("member.width"), value("member.material"));
    if (kind == QLatin1String("loadCase"))
        return Text("UI_DEMO_LOAD_CASE_SUMMARY")
            .arg(value("loadCase.actionCategory"), value("loadCase.partialFactor"),
                 value("loadCase.selfWeight"));
    return {};
}

int SampleObjectsModel::RowOf(ObjectId id) const
{
    auto it = std::find(m_rows.begin(), m_rows.end(), id);
    return it == m_rows.end() ? -1 : static_cast<int>(it - m_rows.begin());
}
