#include "StructuralObjectTypes.h"

#include "StructuralModel.h"

namespace Orvo::Kernel::Framework {

namespace {

const QString c_general = QStringLiteral("UI_PROPERTIES_CATEGORY_GENERAL");
const QString c_geometry = QStringLiteral("UI_PROPERTIES_CATEGORY_GEOMETRY");
const QString c_support = QStringLiteral("UI_PROPERTIES_CATEGORY_SUPPORT");
const QString c_crossSection = QStringLiteral("UI_PROPERTIES_CATEGORY_CROSS_SECTION");
const QString c_material = QStringLiteral("UI_PROPERTIES_CATEGORY_MATERIAL");
const QString c_releases = QStringLiteral("UI_PROPERTIES_CATEGORY_RELEASES");
const QString c_analysis = QStringLiteral("UI_PROPERTIES_CATEGORY_ANALYSIS");
const QString c_display = QStringLiteral("UI_PROPERTIES_CATEGORY_DISPLAY");

const QString c_crossSectionIllustration = QStringLiteral("Illustrations/CrossSection.qml");

PropertyValue Integer(std::int32_t value)
{
    return value;
}

// Every object type starts with the same general properties and ends with the same display
// properties, so a mixed selection still has something in common to edit.
void AddGeneralProperties(ObjectType& type)
{
    type.AddProperty(PropertyDefinition(StructuralModel::c_numberProperty, PropertyType::Integer,
                                        QStringLiteral("UI_PROP_NUMBER"))
                         .WithCategory(c_general)
                         .AsReadOnly()
                         .HiddenWhenValuesDiffer());
    type.AddProperty(PropertyDefinition(QStringLiteral("general.name"), PropertyType::String,
                                        QStringLiteral("UI_PROP_NAME"))
                         .WithCategory(c_general)
                         .HiddenWhenValuesDiffer());
    type.AddProperty(PropertyDefinition(QStringLiteral("general.comment"), PropertyType::String,
                                        QStringLiteral("UI_PROP_COMMENT"))
                         .WithCategory(c_general)
                         .AsAdvanced());
}

void AddDisplayProperties(ObjectType& type, const QColor& colour)
{
    type.AddProperty(PropertyDefinition(QStringLiteral("display.color"), PropertyType::Color,
                                        QStringLiteral("UI_PROP_COLOR"))
                         .WithCategory(c_display)
                         .WithDefault(colour));
    type.AddProperty(PropertyDefinition(QStringLiteral("display.showLabel"), PropertyType::Bool,
                                        QStringLiteral("UI_PROP_SHOW_LABEL"))
                         .WithCategory(c_display)
                         .WithDefault(true)
                         .AsAdvanced());
}

PropertyDefinition Length(const QString& key, const QString& nameId, const QString& category,
                          const QStringList& subcategories)
{
    return PropertyDefinition(key, PropertyType::Real, nameId)
        .WithCategory(category, subcategories)
        .WithUnits(QStringLiteral("m"), 3)
        .WithRange(-1.0e5, 1.0e5);
}

PropertyDefinition Stiffness(const QString& key, const QString& nameId, const QStringList& subcategories,
                             const QString& units)
{
    return PropertyDefinition(key, PropertyType::Real, nameId)
        .WithCategory(c_support, subcategories)
        .WithUnits(units, 1)
        .WithRange(0.0, std::nullopt)
        .WithRichTextName()
        .AsAdvanced();
}

PropertyDefinition SectionDimension(const QString& key, const QString& nameId,
                                    const QStringList& subcategories, double defaultValue)
{
    return PropertyDefinition(key, PropertyType::Real, nameId)
        .WithCategory(c_crossSection, subcategories)
        .WithUnits(QStringLiteral("mm"), 1)
        .WithRange(1.0, 5000.0)
        .WithDefault(defaultValue)
        .WithIllustration(c_crossSectionIllustration);
}

} // namespace

ObjectType StructuralObjectTypes::CreateNode()
{
    ObjectType node(c_node, QStringLiteral("UI_OBJECT_NODE"), QStringLiteral("UI_OBJECT_NODES"));
    AddGeneralProperties(node);
    const QStringList coordinates { QStringLiteral("UI_PROPERTIES_SUB_COORDINATES") };
    node.AddProperty(Length(QStringLiteral("node.x"), QStringLiteral("UI_PROP_X"), c_geometry, coordinates));
    node.AddProperty(Length(QStringLiteral("node.y"), QStringLiteral("UI_PROP_Y"), c_geometry, coordinates));
    node.AddProperty(Length(QStringLiteral("node.z"), QStringLiteral("UI_PROP_Z"), c_geometry, coordinates));
    node.AddProperty(
        PropertyDefinition(QStringLiteral("node.coordinateSystem"), PropertyType::List,
                           QStringLiteral("UI_PROP_COORDINATE_SYSTEM"))
            .WithCategory(c_geometry)
            .WithChoices({ QStringLiteral("UI_CHOICE_GLOBAL"), QStringLiteral("UI_CHOICE_LOCAL") })
            .AsAdvanced());
    node.AddProperty(PropertyDefinition(QStringLiteral("node.supportType"), PropertyType::List,
                                        QStringLiteral("UI_PROP_SUPPORT_TYPE"))
                         .WithCategory(c_support)
                         .WithChoices({ QStringLiteral("UI_CHOICE_SUPPORT_FREE"),
                                        QStringLiteral("UI_CHOICE_SUPPORT_PINNED"),
                                        QStringLiteral("UI_CHOICE_SUPPORT_FIXED"),
                                        QStringLiteral("UI_CHOICE_SUPPORT_ROLLER") })
                         .WithIllustration(QStringLiteral("Illustrations/SupportTypes.qml")));
    const QStringList springs { QStringLiteral("UI_PROPERTIES_SUB_SPRINGS") };
    const QStringList rotational { QStringLiteral("UI_PROPERTIES_SUB_SPRINGS"),
                                   QStringLiteral("UI_PROPERTIES_SUB_ROTATIONAL_SPRINGS") };
    const QString force = QStringLiteral("kN/m");
    const QString moment = QStringLiteral("kNm/rad");
    node.AddProperty(
        Stiffness(QStringLiteral("node.springX"), QStringLiteral("UI_PROP_SPRING_X"), springs, force));
    node.AddProperty(
        Stiffness(QStringLiteral("node.springY"), QStringLiteral("UI_PROP_SPRING_Y"), springs, force));
    node.AddProperty(
        Stiffness(QStringLiteral("node.springZ"), QStringLiteral("UI_PROP_SPRING_Z"), springs, force));
    node.AddProperty(Stiffness(QStringLiteral("node.springRotX"), QStringLiteral("UI_PROP_SPRING_ROT_X"),
                               rotational, moment));
    node.AddProperty(Stiffness(QStringLiteral("node.springRotY"), QStringLiteral("UI_PROP_SPRING_ROT_Y"),
                               rotational, moment));
    node.AddProperty(Stiffness(QStringLiteral("node.springRotZ"), QStringLiteral("UI_PROP_SPRING_ROT_Z"),
                               rotational, moment));
    AddDisplayProperties(node, QColor(0x1f, 0x6f, 0xeb));
    node.AddAction({ QStringLiteral("node.placeOnGround"),
                     QStringLiteral("UI_PROPERTIES_ACTION_PLACE_ON_GROUND"), [](StructuralObject& object) {
                         return object.SetValue(QStringLiteral("node.z"), 0.0)
                             == StructuralObject::SetResult::Changed;
                     } });
    return node;
}

ObjectType StructuralObjectTypes::CreateMember()
{
    ObjectType member(c_member, QStringLiteral("UI_OBJECT_MEMBER"), QStringLiteral("UI_OBJECT_MEMBERS"));
    AddGeneralProperties(member);
    const QStringList nodes { QStringLiteral("UI_PROPERTIES_SUB_NODES") };
    member.AddProperty(PropertyDefinition(QStringLiteral("member.startNode"), PropertyType::Integer,
                                          QStringLiteral("UI_PROP_START_NODE"))
                           .WithCategory(c_geometry, nodes)
                           .WithRange(1, std::nullopt)
                           .WithDefault(Integer(1))
                           .HiddenWhenValuesDiffer());
    member.AddProperty(PropertyDefinition(QStringLiteral("member.endNode"), PropertyType::Integer,
                                          QStringLiteral("UI_PROP_END_NODE"))
                           .WithCategory(c_geometry, nodes)
                           .WithRange(1, std::nullopt)
                           .WithDefault(Integer(2))
                           .HiddenWhenValuesDiffer());
    member.AddProperty(PropertyDefinition(QStringLiteral("member.rotation"), PropertyType::Real,
                                          QStringLiteral("UI_PROP_ROTATION"))
                           .WithCategory(c_geometry)
                           .WithUnits(QStringLiteral("°"), 1)
                           .WithRange(-180.0, 180.0));
    member.AddProperty(PropertyDefinition(QStringLiteral("member.sectionShape"), PropertyType::List,
                                          QStringLiteral("UI_PROP_SECTION_SHAPE"))
                           .WithCategory(c_crossSection)
                           .WithChoices({ QStringLiteral("UI_CHOICE_SECTION_I"),
                                          QStringLiteral("UI_CHOICE_SECTION_RECTANGLE"),
                                          QStringLiteral("UI_CHOICE_SECTION_CIRCLE") })
                           .WithIllustration(c_crossSectionIllustration));
    const QStringList dimensions { QStringLiteral("UI_PROPERTIES_SUB_DIMENSIONS") };
    const QStringList plates { QStringLiteral("UI_PROPERTIES_SUB_DIMENSIONS"),
                               QStringLiteral("UI_PROPERTIES_SUB_PLATES") };
    member.AddProperty(SectionDimension(QStringLiteral("member.height"), QStringLiteral("UI_PROP_HEIGHT"),
                                        dimensions, 300.0));
    member.AddProperty(
        SectionDimension(QStringLiteral("member.width"), QStringLiteral("UI_PROP_WIDTH"), dimensions, 150.0));
    member.AddProperty(SectionDimension(QStringLiteral("member.flangeThickness"),
                                        QStringLiteral("UI_PROP_FLANGE_THICKNESS"), plates, 10.7)
                           .WithRichTextName()
                           .AsAdvanced());
    member.AddProperty(SectionDimension(QStringLiteral("member.webThickness"),
                                        QStringLiteral("UI_PROP_WEB_THICKNESS"), plates, 7.1)
                           .WithRichTextName()
                           .AsAdvanced());
    member.AddProperty(PropertyDefinition(QStringLiteral("member.material"), PropertyType::List,
                                          QStringLiteral("UI_PROP_MATERIAL"))
                           .WithCategory(c_material)
                           .WithChoices({ QStringLiteral("UI_CHOICE_MATERIAL_S235"),
                                          QStringLiteral("UI_CHOICE_MATERIAL_S355"),
                                          QStringLiteral("UI_CHOICE_MATERIAL_C30"),
                                          QStringLiteral("UI_CHOICE_MATERIAL_GL24H") }));
    member.AddProperty(PropertyDefinition(QStringLiteral("member.yieldStrength"), PropertyType::Real,
                                          QStringLiteral("UI_PROP_YIELD_STRENGTH"))
                           .WithCategory(c_material)
                           .WithUnits(QStringLiteral("MPa"), 0)
                           .WithRange(0.0, 2000.0)
                           .WithDefault(235.0)
                           .WithRichTextName()
                           .WithParameter(QStringLiteral("UI_CHOICE_MATERIAL_S235"), 235.0)
                           .WithParameter(QStringLiteral("UI_CHOICE_MATERIAL_S275"), 275.0)
                           .WithParameter(QStringLiteral("UI_CHOICE_MATERIAL_S355"), 355.0)
                           .WithParameter(QStringLiteral("UI_CHOICE_MATERIAL_S460"), 460.0));
    member.AddProperty(PropertyDefinition(QStringLiteral("member.elasticModulus"), PropertyType::Real,
                                          QStringLiteral("UI_PROP_ELASTIC_MODULUS"))
                           .WithCategory(c_material)
                           .WithUnits(QStringLiteral("GPa"), 1)
                           .WithRange(0.1, 1000.0)
                           .WithDefault(210.0)
                           .AsAdvanced());
    member.AddProperty(PropertyDefinition(QStringLiteral("member.hingeAtStart"), PropertyType::Bool,
                                          QStringLiteral("UI_PROP_HINGE_START"))
                           .WithCategory(c_releases)
                           .AsAdvanced());
    member.AddProperty(PropertyDefinition(QStringLiteral("member.hingeAtEnd"), PropertyType::Bool,
                                          QStringLiteral("UI_PROP_HINGE_END"))
                           .WithCategory(c_releases)
                           .AsAdvanced());
    AddDisplayProperties(member, QColor(0x2b, 0x34, 0x45));
    member.AddAction({ QStringLiteral("member.reverse"),
                       QStringLiteral("UI_PROPERTIES_ACTION_REVERSE_MEMBER"), [](StructuralObject& object) {
                           const QString start = QStringLiteral("member.startNode");
                           const QString end = QStringLiteral("member.endNode");
                           const PropertyValue startNode = object.Value(start);
                           const PropertyValue endNode = object.Value(end);
                           if (startNode == endNode)
                               return false;
                           object.SetValue(start, endNode);
                           object.SetValue(end, startNode);
                           return true;
                       } });
    return member;
}

ObjectType StructuralObjectTypes::CreateLoadCase()
{
    ObjectType loadCase(c_loadCase, QStringLiteral("UI_OBJECT_LOAD_CASE"),
                        QStringLiteral("UI_OBJECT_LOAD_CASES"));
    AddGeneralProperties(loadCase);
    loadCase.AddProperty(PropertyDefinition(QStringLiteral("loadCase.actionCategory"), PropertyType::List,
                                            QStringLiteral("UI_PROP_ACTION_CATEGORY"))
                             .WithCategory(c_analysis)
                             .WithChoices({ QStringLiteral("UI_CHOICE_ACTION_PERMANENT"),
                                            QStringLiteral("UI_CHOICE_ACTION_IMPOSED"),
                                            QStringLiteral("UI_CHOICE_ACTION_SNOW"),
                                            QStringLiteral("UI_CHOICE_ACTION_WIND") }));
    loadCase.AddProperty(PropertyDefinition(QStringLiteral("loadCase.active"), PropertyType::Bool,
                                            QStringLiteral("UI_PROP_ACTIVE"))
                             .WithCategory(c_analysis)
                             .WithDefault(true));
    loadCase.AddProperty(PropertyDefinition(QStringLiteral("loadCase.partialFactor"), PropertyType::Real,
                                            QStringLiteral("UI_PROP_PARTIAL_FACTOR"))
                             .WithCategory(c_analysis)
                             .WithUnits(QString(), 2)
                             .WithRange(0.0, 3.0)
                             .WithDefault(1.35)
                             .WithRichTextName()
                             .WithParameter(QStringLiteral("UI_PARAMETER_FAVOURABLE"), 1.0)
                             .WithParameter(QStringLiteral("UI_PARAMETER_PERMANENT"), 1.35)
                             .WithParameter(QStringLiteral("UI_PARAMETER_VARIABLE"), 1.5));
    const QStringList selfWeight { QStringLiteral("UI_PROPERTIES_SUB_SELF_WEIGHT") };
    loadCase.AddProperty(PropertyDefinition(QStringLiteral("loadCase.selfWeight"), PropertyType::Bool,
                                            QStringLiteral("UI_PROP_SELF_WEIGHT"))
                             .WithCategory(c_analysis, selfWeight));
    const auto factor = [&selfWeight](const QString& key, const QString& nameId, double defaultValue) {
        return PropertyDefinition(key, PropertyType::Real, nameId)
            .WithCategory(c_analysis, selfWeight)
            .WithUnits(QString(), 2)
            .WithRange(-10.0, 10.0)
            .WithDefault(defaultValue)
            .AsAdvanced();
    };
    loadCase.AddProperty(factor(QStringLiteral("loadCase.factorX"), QStringLiteral("UI_PROP_FACTOR_X"), 0.0));
    loadCase.AddProperty(factor(QStringLiteral("loadCase.factorY"), QStringLiteral("UI_PROP_FACTOR_Y"), 0.0));
    loadCase.AddProperty(
        factor(QStringLiteral("loadCase.factorZ"), QStringLiteral("UI_PROP_FACTOR_Z"), -1.0));
    AddDisplayProperties(loadCase, QColor(0xb7, 0x79, 0x1f));
    return loadCase;
}

void StructuralObjectTypes::RegisterAll(StructuralModel& model)
{
    model.RegisterType(CreateNode());
    model.RegisterType(CreateMember());
    model.RegisterType(CreateLoadCase());
}

} // namespace Orvo::Kernel::Framework
