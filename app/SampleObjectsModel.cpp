#include "SampleObjectsModel.h"

#include "basiccomponents/DisplayUnits.h"
#include "events/DisplayUnitsChanged.h"

#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <QColor>
#include <QLocale>
#include <QTextDocumentFragment>
#include <algorithm>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::Kernel::Model;

namespace {

QString Text(const QString& id)
{
    auto loader = ServiceCatalog::Global()->Get<IStringLoader>();
    if (!loader)
        return id;
    const QString text = QString::fromStdWString(
        loader->Load({ id.toStdWString(), DefaultServices::c_componentsStringTable }));
    return text.contains(QLatin1Char('<')) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

// The text of one value with its units.
QString Format(const PropertyDefinition& definition, const PropertyValue& value)
{
    QString text;
    if (definition.type == PropertyType::List)
        text = Text(definition.choiceIds.value(std::get<std::int32_t>(value)));
    else if (const auto* number = std::get_if<double>(&value)) {
        // In the unit the user chose for the quantity.
        const auto units = ServiceCatalog::Global()->Get<Orvo::UI::BasicComponents::DisplayUnits>();
        const auto shown = units
            ? units->ForStoredUnit(definition.units, definition.decimals)
            : Orvo::UI::BasicComponents::DisplayUnits::Shown { definition.units, 1.0, definition.decimals };
        return QLocale().toString(shown.ToShown(*number), 'f', shown.decimals)
            + (shown.unit.isEmpty() ? QString() : QLatin1Char(' ') + shown.unit);
    } else if (const auto* integer = std::get_if<std::int32_t>(&value))
        text = QString::number(*integer);
    else if (const auto* flag = std::get_if<bool>(&value))
        text = Text(*flag ? QStringLiteral("UI_PROPERTIES_YES") : QStringLiteral("UI_PROPERTIES_NO"));
    else if (const auto* string = std::get_if<QString>(&value))
        text = *string;
    return definition.units.isEmpty() ? text : text + QLatin1Char(' ') + definition.units;
}

constexpr int c_summaryValues = 4;

} // namespace

SampleObjectsModel::SampleObjectsModel(QObject* parent)
    : QAbstractListModel(parent)
{
    auto catalog = ServiceCatalog::Global();
    m_model = catalog->Get<StructuralModel>();
    if (auto bus = catalog->Get<EventBus>()) {
        m_selectionConnection = bus->Subscribe<SelectionChangedEvent>(
            [this](const SelectionChangedEvent&) { OnSelectionChanged(); });
        m_valuesConnection = bus->Subscribe<ObjectValuesChangedEvent>(
            [this](const ObjectValuesChangedEvent& event) { OnValuesChanged(event.objects); });
        m_unitsConnection = bus->Subscribe<Orvo::UI::Events::DisplayUnitsChanged>(
            [this](const Orvo::UI::Events::DisplayUnitsChanged&) {
                if (m_rowCount > 0)
                    emit dataChanged(index(0), index(m_rowCount - 1));
            });
        m_structureConnection
            = bus->Subscribe<StructureChangedEvent>([this](const StructureChangedEvent& event) {
                  if (event.kinds.empty() || std::count(event.kinds.begin(), event.kinds.end(), m_kind))
                      Reload();
              });
    }
    Reload();
    OnSelectionChanged();
}

SampleObjectsModel::~SampleObjectsModel() = default;

int SampleObjectsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

QVariant SampleObjectsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid) || !m_model)
        return {};
    const ObjectId id = IdAt(index.row());
    switch (role) {
    case numberRole:
        return NumberOf(id);
    case typeNameRole:
        return Text(ModelMessage::KindNameId(m_kind));
    case Qt::DisplayRole:
    case nameRole: {
        const auto name = m_model->Value(id, QStringLiteral("general.name"));
        return name ? std::get<QString>(*name) : QString();
    }
    case summaryRole:
        return Summary(id);
    case colorRole: {
        const auto colour = m_model->Value(id, QStringLiteral("display.color"));
        return colour ? std::get<QColor>(*colour) : QColor(Qt::gray);
    }
    case selectedRole:
        return m_selected.count(id) > 0;
    default:
        return {};
    }
}

QHash<int, QByteArray> SampleObjectsModel::roleNames() const
{
    return { { numberRole, "number" },   { typeNameRole, "typeName" }, { nameRole, "name" },
             { summaryRole, "summary" }, { colorRole, "objectColor" }, { selectedRole, "selected" } };
}

QString SampleObjectsModel::kind() const
{
    return m_model ? m_model->Type(m_kind).Key() : QString();
}

void SampleObjectsModel::setKind(const QString& key)
{
    const ObjectType* type = m_model ? m_model->FindType(key) : nullptr;
    if (!type || type->Kind() == m_kind)
        return;
    m_kind = type->Kind();
    Reload();
    emit kindChanged();
    emit selectedCountChanged();
}

QStringList SampleObjectsModel::kinds() const
{
    QStringList keys;
    for (ObjectKind kind : c_allKinds)
        keys << (m_model ? m_model->Type(kind).Key() : QString());
    return keys;
}

QStringList SampleObjectsModel::kindNames() const
{
    QStringList names;
    for (ObjectKind kind : c_allKinds)
        names << Text(ModelMessage::KindPluralNameId(kind));
    return names;
}

int SampleObjectsModel::selectedCount() const
{
    // Of the kind listed: the selection also holds what the view picked of other kinds.
    return int(std::count_if(m_selected.begin(), m_selected.end(),
                             [this](ObjectId id) { return KindOf(id) == m_kind; }));
}

int SampleObjectsModel::lastSelectedRow() const
{
    return m_lastSelectedRow;
}

void SampleObjectsModel::click(int row, int modifiers)
{
    if (!m_model || row < 0 || row >= rowCount())
        return;
    const ObjectId id = IdAt(row);
    std::vector<ObjectId> selection = m_model->Selection();
    if (modifiers & Qt::ShiftModifier && m_anchorRow >= 0) {
        const auto [first, last] = std::minmax(m_anchorRow, row);
        selection.clear();
        for (int r = first; r <= last; ++r)
            selection.push_back(IdAt(r));
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

void SampleObjectsModel::selectAll()
{
    if (m_model)
        m_model->Select(m_model->Objects(m_kind));
}

void SampleObjectsModel::clearSelection()
{
    if (m_model)
        m_model->Select({});
}

void SampleObjectsModel::Reload()
{
    beginResetModel();
    m_rowCount = m_model ? int(m_model->Structure().Count(m_kind)) : 0;
    m_anchorRow = -1;
    endResetModel();
    UpdateLastSelectedRow();
}

void SampleObjectsModel::OnSelectionChanged()
{
    m_selected.clear();
    if (m_model)
        m_selected.insert(m_model->Selection().begin(), m_model->Selection().end());
    if (m_rowCount > 0)
        emit dataChanged(index(0), index(m_rowCount - 1), { selectedRole });
    emit selectedCountChanged();
    UpdateLastSelectedRow();
}

void SampleObjectsModel::UpdateLastSelectedRow()
{
    int row = -1;
    if (m_model) {
        // The host keeps the selection in the order it was made.
        const std::vector<ObjectId>& selection = m_model->Selection();
        for (auto id = selection.rbegin(); id != selection.rend() && row < 0; ++id) {
            if (KindOf(*id) == m_kind)
                if (const auto index = m_model->IndexOf(*id))
                    row = int(*index);
        }
    }
    if (row == m_lastSelectedRow)
        return;
    m_lastSelectedRow = row;
    emit lastSelectedRowChanged();
}

void SampleObjectsModel::OnValuesChanged(const std::vector<ObjectId>& ids)
{
    // Rows are the kind's table: an object's row is its index there.
    int first = m_rowCount;
    int last = -1;
    for (ObjectId id : ids) {
        if (KindOf(id) != m_kind)
            continue;
        if (const auto row = m_model->IndexOf(id)) {
            first = std::min(first, int(*row));
            last = std::max(last, int(*row));
        }
    }
    if (last >= 0)
        emit dataChanged(index(first), index(last));
}

ObjectId SampleObjectsModel::IdAt(int row) const
{
    return VisitKind(m_kind, [this, row](auto tag) {
        using Record = typename decltype(tag)::Type;
        return MakeObjectId(m_kind, m_model->Structure().Table<Record>().At(std::size_t(row)).number);
    });
}

// The first values of the object's type that tell objects of a kind apart at a glance.
QString SampleObjectsModel::Summary(ObjectId id) const
{
    QStringList parts;
    for (const PropertyDefinition& definition : m_model->Type(m_kind).Properties()) {
        if (definition.key == StructuralModel::c_numberProperty || definition.type == PropertyType::String
            || definition.type == PropertyType::Color || !definition.basic)
            continue;
        const auto value = m_model->Value(id, definition.key);
        if (!value)
            continue;
        parts << QStringLiteral("%1 %2").arg(Text(definition.nameId), Format(definition, *value));
        if (parts.size() == c_summaryValues)
            break;
    }
    return parts.join(QStringLiteral(" · "));
}
