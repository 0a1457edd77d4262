#pragma once

#include "PropertyItem.h"
#include "properties/PropertyValue.h"
#include "properties/StructuralModel.h"

#include "framework/EventConnection.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <cstdint>
#include <memory>
#include <vector>

namespace Orvo::UI::UIComponents {

// The properties that the shown objects have in common, as one flat list of category,
// subcategory and property rows (see PropertiesRoles.h for the roles). A property row holds
// the distinct values of the objects; an edit writes to every shown object.
class PropertiesModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PropertiesModel)

public:
    // What SetValue does besides writing a value. Offered as action entries in mixedValuesRole,
    // where QML sees them as { "action": value }.
    enum PropertyAction : std::int32_t
    {
        NoAction = 0,
        ResetToDefaultAction = 1,
    };
    Q_ENUM(PropertyAction)

    explicit PropertiesModel(QObject* parent = nullptr);
    ~PropertiesModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Lists the properties the objects have in common. Unknown ids are left out.
    void ShowObjects(std::shared_ptr<Kernel::Framework::StructuralModel> model,
                     const std::vector<Kernel::Framework::ObjectId>& objects);
    // Reads the values of the shown objects again; rows whose values changed report it. When the
    // properties the objects have changed with them (another section shape), the rows are
    // listed anew.
    void RefreshValues();
    // Writes value (or runs action) for the property uuid on every shown object.
    bool SetValue(const QVariant& value, const QString& uuid, std::int32_t action);
    // The collapsed flags of every row follow the category names given.
    void SetCollapsedCategories(const std::vector<QString>& collapsedCategories);

    const std::vector<Kernel::Framework::ObjectId>& ShownObjects() const { return m_objects; }
    int FindRow(const QString& uuid) const;
    const Kernel::Framework::PropertyDefinition* FindDefinition(const QString& uuid) const;

signals:
    // The model refused an edit; reason is the user's text of why.
    void valueRejected(const QString& uuid, const QString& reason);
    void valueAccepted(const QString& uuid);

private:
    struct ShownObject
    {
        const Kernel::Framework::ObjectType* type;
        std::size_t index;
    };

    QVariant PropertyData(const PropertyItem& item, int row, int role) const;
    QVariant HeaderData(const PropertyItem& item, int row, int role) const;
    std::vector<const Kernel::Framework::PropertyDefinition*> CommonDefinitions() const;
    void FollowDisplayUnits();
    PropertyItemValues CollectValues(const Kernel::Framework::PropertyDefinition& definition) const;
    std::vector<ShownObject> ResolveShown() const;
    bool WriteValue(const PropertyItem& item, const QVariant& value);
    bool Report(const QString& uuid, const Kernel::Framework::StructuralModel::EditResult& result);
    bool WriteParameter(const PropertyItem& item, const QVariant& parameterIndex);

    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    std::vector<Kernel::Framework::ObjectId> m_objects;
    std::vector<const Kernel::Framework::ObjectType*> m_types;
    std::vector<const Kernel::Framework::PropertyDefinition*> m_definitions;
    std::vector<PropertyItem> m_items;
    std::vector<QString> m_collapsedCategories;
    Kernel::Framework::EventConnection m_unitsConnection;
};

} // namespace Orvo::UI::UIComponents
