#include "PropertiesModel.h"

#include "PropertiesLogging.h"
#include "PropertiesRoles.h"
#include "PropertyRowsBuilder.h"
#include "PropertyValueConversion.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"

#include <algorithm>
#include <limits>

namespace Orvo::UI::UIComponents {

using namespace PropertiesRoles;
using Kernel::Framework::ObjectId;
using Kernel::Framework::PropertyDefinition;
using Kernel::Framework::PropertyType;
using Kernel::Framework::PropertyValue;
using Kernel::Framework::StructuralModel;

namespace {

QStringList Texts(const QStringList& ids)
{
    QStringList texts;
    texts.reserve(ids.size());
    for (const QString& id : ids)
        texts.push_back(GetText(id));
    return texts;
}

bool Contains(const std::vector<QString>& names, const QString& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Bounds for QML's validators: a missing one is the widest the type allows.
QVariant Bound(const PropertyDefinition& definition, const std::optional<double>& bound, bool lower)
{
    if (bound)
        return definition.type == PropertyType::Integer
            ? QVariant(static_cast<int>(*bound))
            : QVariant(PropertyValueConversion::Shown(definition).ToShown(*bound));
    if (definition.type == PropertyType::Integer)
        return lower ? std::numeric_limits<std::int32_t>::lowest() : std::numeric_limits<std::int32_t>::max();
    return lower ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
}

} // namespace

PropertiesModel::PropertiesModel(QObject* parent)
    : QAbstractListModel(parent)
{
    if (const auto catalog = Kernel::Framework::ServiceCatalog::Global()) {
        if (const auto eventbus = catalog->Get<Kernel::Framework::EventBus>())
            m_unitsConnection = eventbus->Subscribe<Events::DisplayUnitsChanged>(
                [this](const Events::DisplayUnitsChanged&) { FollowDisplayUnits(); });
    }
}

void PropertiesModel::FollowDisplayUnits()
{
    // The distinct values are kept as shown, so they are gathered again in the new units; every
    // number, unit, bound and decimal count of the rows may have changed.
    for (PropertyItem& item : m_items) {
        if (item.IsProperty())
            item.values = CollectValues(*item.definition);
    }
    if (!m_items.empty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

PropertiesModel::~PropertiesModel() = default;

int PropertiesModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(m_items.size());
}

QVariant PropertiesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const PropertyItem& item = m_items[static_cast<std::size_t>(index.row())];
    return item.IsProperty() ? PropertyData(item, index.row(), role) : HeaderData(item, index.row(), role);
}

QVariant PropertiesModel::PropertyData(const PropertyItem& item, int row, int role) const
{
    const PropertyDefinition& definition = *item.definition;
    const PropertyItemValues& values = item.values;
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return item.name;
    case uuidRole:
        return definition.uuid;
    case isNameRichTextRole:
        return definition.richTextName;
    case typeRole:
        return item.type;
    case categoryRole:
        return item.category;
    case Qt::EditRole:
    case valueRole:
        return PropertyValueConversion::ToVariant(values.first, definition);
    case listIndexRole:
        if (definition.type == PropertyType::List && values.distinctCount == 1)
            return std::get<std::int32_t>(values.first);
        return -1;
    case indexRole:
        return row;
    case mixedValuesRole:
        return values.distinct.GetVariantList();
    case allValuesRole:
        return Texts(definition.choiceIds);
    case selectedParametersIndicesRole: {
        QVariantList indices;
        if (!definition.parameters.empty()) {
            for (int index : values.parameterIndices)
                indices.push_back(index);
        }
        return indices;
    }
    case parametersNamesRole: {
        QStringList names;
        for (const auto& parameter : definition.parameters)
            names.push_back(GetText(parameter.nameId));
        return names;
    }
    case parametersValuesRole: {
        QVariantList parameterValues;
        for (const auto& parameter : definition.parameters)
            parameterValues.push_back(PropertyValueConversion::ToVariant(parameter.value, definition));
        return parameterValues;
    }
    case hasActionRole:
        return !definition.readOnly && values.highlight != PropertyItemValues::Default;
    case isEditableRole:
        return !definition.readOnly;
    case highlightStateRole:
        return values.highlight;
    case visibleWhenValuesDifferRole:
        return definition.visibleWhenValuesDiffer;
    case mixedRole:
        return values.distinctCount > 1;
    case unitsRole:
        return PropertyValueConversion::Shown(definition).unit;
    case isMinMaxRole:
        return definition.minimum.has_value() || definition.maximum.has_value();
    case minRole:
        return Bound(definition, definition.minimum, true);
    case maxRole:
        return Bound(definition, definition.maximum, false);
    case decimalsRole:
        return definition.type == PropertyType::Integer ? 0
                                                        : PropertyValueConversion::Shown(definition).decimals;
    case isCollapsedRole:
        return item.collapsed;
    case isBasicRole:
        return definition.basic;
    default:
        return {};
    }
}

QVariant PropertiesModel::HeaderData(const PropertyItem& item, int row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return item.name;
    case uuidRole:
    case unitsRole:
        return QString();
    case typeRole:
        return item.type;
    case categoryRole:
        return item.category;
    case valueRole:
        return item.level;
    case listIndexRole:
        return -1;
    case indexRole:
        return row;
    case mixedValuesRole:
    case selectedParametersIndicesRole:
    case parametersValuesRole:
        return QVariantList();
    case allValuesRole:
    case parametersNamesRole:
        return QStringList();
    case isNameRichTextRole:
    case hasActionRole:
    case isEditableRole:
    case mixedRole:
    case isMinMaxRole:
        return false;
    case highlightStateRole:
    case decimalsRole:
        return 0;
    case visibleWhenValuesDifferRole:
    case isBasicRole:
        return true;
    case isCollapsedRole:
        return item.collapsed;
    default:
        return {};
    }
}

bool PropertiesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return false;
    const PropertyItem& item = m_items[static_cast<std::size_t>(index.row())];
    if (!item.IsProperty())
        return false;
    switch (role) {
    case Qt::EditRole:
    case valueRole:
    case listIndexRole:
        return SetValue(value, item.definition->uuid, NoAction);
    case selectedParametersIndicesRole:
        return WriteParameter(item, value);
    default:
        return false;
    }
}

Qt::ItemFlags PropertiesModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return Qt::NoItemFlags;
    const PropertyItem& item = m_items[static_cast<std::size_t>(index.row())];
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (item.IsProperty()) {
        flags |= Qt::ItemIsSelectable;
        if (!item.definition->readOnly)
            flags |= Qt::ItemIsEditable;
    }
    return flags;
}

QHash<int, QByteArray> PropertiesModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert({
        { uuidRole, "uuidRole" },
        { nameRole, "nameRole" },
        { isNameRichTextRole, "isNameRichTextRole" },
        { typeRole, "typeRole" },
        { categoryRole, "categoryRole" },
        { valueRole, "valueRole" },
        { listIndexRole, "listIndexRole" },
        { indexRole, "indexRole" },
        { mixedValuesRole, "mixedValuesRole" },
        { allValuesRole, "allValuesRole" },
        { selectedParametersIndicesRole, "selectedParametersIndicesRole" },
        { parametersNamesRole, "parametersNamesRole" },
        { parametersValuesRole, "parametersValuesRole" },
        { hasActionRole, "hasActionRole" },
        { isEditableRole, "isEditableRole" },
        { highlightStateRole, "highlightStateRole" },
        { visibleWhenValuesDifferRole, "visibleWhenValuesDifferRole" },
        { mixedRole, "mixedRole" },
        { unitsRole, "unitsRole" },
        { isMinMaxRole, "isMinMaxRole" },
        { minRole, "minRole" },
        { maxRole, "maxRole" },
        { decimalsRole, "decimalsRole" },
        { isCollapsedRole, "isCollapsedRole" },
    });
    return names;
}

void PropertiesModel::ShowObjects(std::shared_ptr<StructuralModel> model,
                                  const std::vector<ObjectId>& objects)
{
    // A new set of objects brings a different set of rows altogether.
    beginResetModel();
    m_model = std::move(model);
    m_objects.clear();
    m_types.clear();
    if (m_model) {
        for (ObjectId id : objects) {
            const auto* type = m_model->TypeOf(id);
            if (!type) {
                qCWarning(lcProperties).noquote()
                    << "Object" << id << "does not exist; its properties are not shown";
                continue;
            }
            m_objects.push_back(id);
            if (std::find(m_types.begin(), m_types.end(), type) == m_types.end())
                m_types.push_back(type);
        }
    }
    m_definitions = CommonDefinitions();
    m_items = PropertyRowsBuilder::Build(m_definitions);
    for (PropertyItem& item : m_items) {
        item.collapsed = Contains(m_collapsedCategories, item.category);
        if (item.IsProperty())
            item.values = CollectValues(*item.definition);
    }
    endResetModel();
}

void PropertiesModel::RefreshValues()
{
    if (CommonDefinitions() != m_definitions) {
        ShowObjects(m_model, std::vector<ObjectId>(m_objects));
        return;
    }
    int firstChanged = -1;
    int lastChanged = -1;
    int categoryRow = -1;
    for (std::size_t row = 0; row < m_items.size(); ++row) {
        PropertyItem& item = m_items[row];
        if (item.type == c_categoryType)
            categoryRow = static_cast<int>(row);
        if (!item.IsProperty())
            continue;
        PropertyItemValues values = CollectValues(*item.definition);
        if (values.SameAs(item.values))
            continue;
        item.values = std::move(values);
        // The headers above decide whether they are shown by the rows below them, so they
        // are reported too.
        if (firstChanged < 0)
            firstChanged = categoryRow >= 0 ? categoryRow : static_cast<int>(row);
        lastChanged = static_cast<int>(row);
    }
    if (firstChanged >= 0)
        emit dataChanged(index(firstChanged), index(lastChanged));
}

bool PropertiesModel::SetValue(const QVariant& value, const QString& uuid, std::int32_t action)
{
    const int row = FindRow(uuid);
    if (row < 0) {
        qCWarning(lcProperties).noquote() << "SetValue: no property" << uuid << "is shown";
        return false;
    }
    const PropertyItem& item = m_items[static_cast<std::size_t>(row)];
    if (item.definition->readOnly) {
        qCWarning(lcProperties).noquote() << "SetValue:" << item.definition->key << "is read-only";
        return false;
    }
    switch (action) {
    case NoAction:
        return WriteValue(item, value);
    case ResetToDefaultAction:
        return Report(uuid, m_model->ResetToDefault(m_objects, item.definition->key));
    default:
        qCWarning(lcProperties).noquote()
            << "SetValue: unknown action" << action << "for" << item.definition->key;
        return false;
    }
}

bool PropertiesModel::WriteValue(const PropertyItem& item, const QVariant& value)
{
    const PropertyDefinition& definition = *item.definition;
    const auto converted = PropertyValueConversion::FromVariant(value, definition);
    if (!converted) {
        qCWarning(lcProperties).nospace().noquote()
            << "SetValue: " << value << " is no " << Kernel::Framework::TypeName(definition.type)
            << " value for " << definition.key;
        return false;
    }
    // The rows may be listed anew while the model announces the change (a property that no
    // longer applies): nothing of the item is read after the write.
    const QString uuid = definition.uuid;
    const auto result = m_model->SetValue(m_objects, definition.key, *converted);
    return Report(uuid, result) && result.changed + result.unchanged > 0;
}

bool PropertiesModel::Report(const QString& uuid, const StructuralModel::EditResult& result)
{
    RefreshValues();
    if (result.rejected > 0) {
        emit valueRejected(uuid, m_model->Text(result.firstRejection));
        return false;
    }
    emit valueAccepted(uuid);
    return true;
}

bool PropertiesModel::WriteParameter(const PropertyItem& item, const QVariant& parameterIndex)
{
    const PropertyDefinition& definition = *item.definition;
    bool ok = false;
    const int index = parameterIndex.toInt(&ok);
    if (!ok || index < 0 || index >= static_cast<int>(definition.parameters.size())) {
        qCWarning(lcProperties).noquote() << "No parameter" << parameterIndex << "for" << definition.key;
        return false;
    }
    if (definition.readOnly)
        return false;
    const QString uuid = definition.uuid;
    return Report(uuid,
                  m_model->SetValue(m_objects, definition.key,
                                    definition.parameters[static_cast<std::size_t>(index)].value));
}

void PropertiesModel::SetCollapsedCategories(const std::vector<QString>& collapsedCategories)
{
    m_collapsedCategories = collapsedCategories;
    for (std::size_t row = 0; row < m_items.size(); ++row) {
        PropertyItem& item = m_items[row];
        const bool collapsed = Contains(m_collapsedCategories, item.category);
        if (item.collapsed == collapsed)
            continue;
        item.collapsed = collapsed;
        const QModelIndex changed = index(static_cast<int>(row));
        emit dataChanged(changed, changed, { isCollapsedRole });
    }
}

int PropertiesModel::FindRow(const QString& uuid) const
{
    auto it = std::find_if(m_items.begin(), m_items.end(), [&uuid](const PropertyItem& item) {
        return item.IsProperty() && item.definition->uuid == uuid;
    });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

const PropertyDefinition* PropertiesModel::FindDefinition(const QString& uuid) const
{
    const int row = FindRow(uuid);
    return row < 0 ? nullptr : m_items[static_cast<std::size_t>(row)].definition;
}

std::vector<PropertiesModel::ShownObject> PropertiesModel::ResolveShown() const
{
    std::vector<ShownObject> shown;
    if (!m_model)
        return shown;
    shown.reserve(m_objects.size());
    for (ObjectId id : m_objects) {
        const auto* type = m_model->TypeOf(id);
        if (type)
            shown.push_back({ type, *m_model->IndexOf(id) });
    }
    return shown;
}

std::vector<const PropertyDefinition*> PropertiesModel::CommonDefinitions() const
{
    std::vector<const PropertyDefinition*> definitions;
    if (m_types.empty())
        return definitions;
    const std::vector<ShownObject> shown = ResolveShown();
    const auto& structure = m_model->Structure();
    for (const PropertyDefinition& definition : m_types.front()->Properties()) {
        const bool shared = std::all_of(m_types.begin() + 1, m_types.end(), [&definition](const auto* type) {
            const PropertyDefinition* other = type->FindProperty(definition.key);
            return other && other->type == definition.type;
        });
        // A property shows when every object has it now.
        const bool applies
            = shared && std::all_of(shown.begin(), shown.end(), [&](const ShownObject& object) {
                  return object.type->FindProperty(definition.key)->AppliesTo(structure, object.index);
              });
        if (applies)
            definitions.push_back(&definition);
    }
    return definitions;
}

PropertyItemValues PropertiesModel::CollectValues(const PropertyDefinition& definition) const
{
    PropertyItemValues values;
    values.first = definition.defaultValue;
    bool hasFirst = false;
    const auto& structure = m_model->Structure();
    // Kinds of object may share a property but not its definition: each reads its own.
    const Kernel::Framework::ObjectType* lastType = nullptr;
    const PropertyDefinition* own = nullptr;
    for (const ShownObject& object : ResolveShown()) {
        if (object.type != lastType) {
            lastType = object.type;
            own = object.type->FindProperty(definition.key);
        }
        if (!own || !own->AppliesTo(structure, object.index))
            continue;
        const PropertyValue value = own->read(structure, object.index);
        if (!hasFirst) {
            values.first = value;
            hasFirst = true;
        }
        if (values.distinct.AddUnique(PropertyValueConversion::ToMixedValue(value, definition)))
            values.parameterIndices.push_back(definition.ParameterIndexOf(value));
        // A read-only value is the host's, so it does not count as the user's change; a
        // property without a default has nothing to go back to.
        if (!own->Check(value).IsEmpty())
            values.highlight = PropertyItemValues::Error;
        else if (!definition.readOnly && own->DiffersFromDefault(value)
                 && values.highlight == PropertyItemValues::Default)
            values.highlight = PropertyItemValues::DefaultModified;
    }
    values.distinctCount = values.distinct.GetCount();
    if (!definition.readOnly && values.highlight != PropertyItemValues::Default)
        values.distinct.AddUnique(MixedValues::Action { ResetToDefaultAction });
    return values;
}

} // namespace Orvo::UI::UIComponents
