#include "SectionObjectTypes.h"

#include "CommonProperties.h"
#include "StructuralObjectTypes.h"
#include "model/MaterialCatalog.h"
#include "model/SectionProperties.h"

namespace Orvo::Kernel::Framework {

namespace {

using namespace Model;
using namespace Categories;

QString ShapeIllustration(SectionShape shape)
{
    switch (shape) {
    case SectionShape::RectangularHollow:
        return QStringLiteral("Illustrations/SectionRectangularHollow.qml");
    case SectionShape::CircularHollow:
        return QStringLiteral("Illustrations/SectionCircularHollow.qml");
    case SectionShape::Rectangle:
        return QStringLiteral("Illustrations/SectionRectangle.qml");
    case SectionShape::Circle:
        return QStringLiteral("Illustrations/SectionCircle.qml");
    case SectionShape::I:
        break;
    }
    return QStringLiteral("Illustrations/CrossSection.qml");
}

// A dimension of the shape, shown only for shapes that have it, with the drawing of the shape.
PropertyDefinition Dimension(const QString& key, const QString& nameId, double CrossSection::*field,
                             double defaultValue, bool plate)
{
    QStringList subcategories { QStringLiteral("UI_PROPERTIES_SUB_DIMENSIONS") };
    if (plate)
        subcategories << QStringLiteral("UI_PROPERTIES_SUB_PLATES");
    PropertyDefinition definition = BindField(PropertyDefinition(key, PropertyType::Real, nameId)
                                                  .WithCategory(c_crossSection, subcategories)
                                                  .WithUnits(QStringLiteral("mm"), 1)
                                                  .WithRange(0.1, 5000.0)
                                                  .WithDefault(defaultValue)
                                                  .WithRichTextName(),
                                              field);
    return definition
        .AppliesWhen([field](const Structure& structure, std::size_t index) {
            return SectionProperties::Uses(structure.Sections().At(index).shape, field);
        })
        .WithIllustrationFor([](const Structure& structure, std::size_t index) {
            return ShapeIllustration(structure.Sections().At(index).shape);
        });
}

PropertyDefinition Computed(const QString& key, const QString& nameId, const QString& units, double scale,
                            double SectionProperties::*field)
{
    return BindComputed<CrossSection>(
        Quantity(key, nameId, c_crossSection, units, 2)
            .WithCategory(c_crossSection, { QStringLiteral("UI_PROPERTIES_SUB_SECTION_VALUES") })
            .WithRichTextName(),
        [scale, field](const Structure&, const CrossSection& section) {
            return SectionProperties::Of(section).*field / scale;
        });
}

// After a value of the user's own, the material keeps the grade that has all its values, or none.
PropertyDefinition MaterialValue(const QString& key, const QString& nameId, const QString& units,
                                 int decimals, double Material::*field)
{
    return Quantity(key, nameId, c_material, units, decimals)
        .WithRange(0.001, 1.0e7)
        .Bind([field](const Structure& structure,
                      std::size_t index) { return PropertyValue(structure.Materials().At(index).*field); },
              [field](Structure& structure, std::size_t index, const PropertyValue& value) {
                  Material& material = structure.Materials().At(index);
                  material.*field = std::get<double>(value);
                  material.grade = MaterialCatalog::GradeMatching(material);
                  return ModelMessage();
              });
}

// The grade list of one category; its last choice stands for values of the user's own.
PropertyDefinition Grade(const QString& key, const QString& nameId, MaterialCategory category)
{
    QStringList choices;
    for (const MaterialGrade& grade : MaterialCatalog::Grades(category))
        choices << grade.nameId;
    choices << QStringLiteral("UI_CHOICE_MATERIAL_USER_DEFINED");
    const auto userDefined = std::int32_t(choices.size() - 1);
    return PropertyDefinition(key, PropertyType::List, nameId)
        .WithCategory(c_material)
        .WithChoices(choices)
        .AppliesWhen([category](const Structure& structure, std::size_t index) {
            return structure.Materials().At(index).category == category;
        })
        .Bind(
            [userDefined](const Structure& structure, std::size_t index) {
                const std::int32_t grade = structure.Materials().At(index).grade;
                return PropertyValue(grade < 0 ? userDefined : grade);
            },
            [userDefined](Structure& structure, std::size_t index, const PropertyValue& value) {
                Material& material = structure.Materials().At(index);
                const std::int32_t grade = std::get<std::int32_t>(value);
                material = MaterialCatalog::WithGrade(material, grade == userDefined ? -1 : grade);
                return ModelMessage();
            });
}

} // namespace

ObjectType SectionObjectTypes::CreateCrossSection()
{
    ObjectType section(ObjectKind::CrossSection, StructuralObjectTypes::c_crossSection);
    AddNumberAndName<CrossSection>(section);
    section.AddProperty(BindField(
        PropertyDefinition(QStringLiteral("section.shape"), PropertyType::List,
                           QStringLiteral("UI_PROP_SECTION_SHAPE"))
            .WithCategory(c_crossSection)
            .WithChoices({ QStringLiteral("UI_CHOICE_SECTION_I"), QStringLiteral("UI_CHOICE_SECTION_RHS"),
                           QStringLiteral("UI_CHOICE_SECTION_CHS"),
                           QStringLiteral("UI_CHOICE_SECTION_RECTANGLE"),
                           QStringLiteral("UI_CHOICE_SECTION_CIRCLE") })
            .WithDefault(std::int32_t { 0 })
            .WithIllustrationFor([](const Structure& structure, std::size_t index) {
                return ShapeIllustration(structure.Sections().At(index).shape);
            }),
        &CrossSection::shape));
    section.AddProperty(Dimension(QStringLiteral("section.height"), QStringLiteral("UI_PROP_HEIGHT"),
                                  &CrossSection::height, 300.0, false));
    section.AddProperty(Dimension(QStringLiteral("section.width"), QStringLiteral("UI_PROP_WIDTH"),
                                  &CrossSection::width, 150.0, false));
    section.AddProperty(Dimension(QStringLiteral("section.diameter"), QStringLiteral("UI_PROP_DIAMETER"),
                                  &CrossSection::diameter, 300.0, false));
    section.AddProperty(Dimension(QStringLiteral("section.flangeThickness"),
                                  QStringLiteral("UI_PROP_FLANGE_THICKNESS"), &CrossSection::flangeThickness,
                                  10.7, true));
    section.AddProperty(Dimension(QStringLiteral("section.webThickness"),
                                  QStringLiteral("UI_PROP_WEB_THICKNESS"), &CrossSection::webThickness, 7.1,
                                  true));
    section.AddProperty(Dimension(QStringLiteral("section.wallThickness"),
                                  QStringLiteral("UI_PROP_WALL_THICKNESS"), &CrossSection::wallThickness,
                                  10.0, true));
    section.AddProperty(Computed(QStringLiteral("section.area"), QStringLiteral("UI_PROP_AREA"),
                                 QStringLiteral("cm²"), 1.0e2, &SectionProperties::area));
    section.AddProperty(Computed(QStringLiteral("section.iy"), QStringLiteral("UI_PROP_IY"),
                                 QStringLiteral("cm⁴"), 1.0e4, &SectionProperties::iy));
    section.AddProperty(Computed(QStringLiteral("section.iz"), QStringLiteral("UI_PROP_IZ"),
                                 QStringLiteral("cm⁴"), 1.0e4, &SectionProperties::iz));
    section.AddProperty(Computed(QStringLiteral("section.torsion"), QStringLiteral("UI_PROP_IT"),
                                 QStringLiteral("cm⁴"), 1.0e4, &SectionProperties::torsion));
    return section;
}

ObjectType SectionObjectTypes::CreateMaterial()
{
    ObjectType material(ObjectKind::Material, StructuralObjectTypes::c_material);
    AddNumberAndName<Material>(material);
    material.AddProperty(PropertyDefinition(QStringLiteral("material.category"), PropertyType::List,
                                            QStringLiteral("UI_PROP_MATERIAL_CATEGORY"))
                             .WithCategory(c_material)
                             .WithChoices({ QStringLiteral("UI_CHOICE_MATERIAL_STEEL"),
                                            QStringLiteral("UI_CHOICE_MATERIAL_CONCRETE"),
                                            QStringLiteral("UI_CHOICE_MATERIAL_TIMBER") })
                             .Bind(
                                 [](const Structure& structure, std::size_t index) {
                                     return PropertyValue(
                                         std::int32_t(structure.Materials().At(index).category));
                                 },
                                 [](Structure& structure, std::size_t index, const PropertyValue& value) {
                                     // Another kind of material starts from its first grade.
                                     Material& record = structure.Materials().At(index);
                                     const auto category = MaterialCategory(std::get<std::int32_t>(value));
                                     if (record.category != category) {
                                         record.category = category;
                                         record = MaterialCatalog::WithGrade(record, 0);
                                     }
                                     return ModelMessage();
                                 }));
    material.AddProperty(Grade(QStringLiteral("material.steelGrade"), QStringLiteral("UI_PROP_STEEL_GRADE"),
                               MaterialCategory::Steel));
    material.AddProperty(Grade(QStringLiteral("material.concreteClass"),
                               QStringLiteral("UI_PROP_CONCRETE_CLASS"), MaterialCategory::Concrete));
    material.AddProperty(Grade(QStringLiteral("material.timberClass"), QStringLiteral("UI_PROP_TIMBER_CLASS"),
                               MaterialCategory::Timber));
    // Steel's strength is its yield strength, offered by grade; the others have a characteristic
    // strength.
    PropertyDefinition yield
        = MaterialValue(QStringLiteral("material.yieldStrength"), QStringLiteral("UI_PROP_YIELD_STRENGTH"),
                        QStringLiteral("MPa"), 0, &Material::strength)
              .WithRichTextName();
    for (const MaterialGrade& grade : MaterialCatalog::Grades(MaterialCategory::Steel))
        yield.WithParameter(grade.nameId, grade.strength);
    material.AddProperty(yield.AppliesWhen([](const Structure& structure, std::size_t index) {
        return structure.Materials().At(index).category == MaterialCategory::Steel;
    }));
    material.AddProperty(MaterialValue(QStringLiteral("material.strength"),
                                       QStringLiteral("UI_PROP_STRENGTH"), QStringLiteral("MPa"), 1,
                                       &Material::strength)
                             .WithRichTextName()
                             .AppliesWhen([](const Structure& structure, std::size_t index) {
                                 return structure.Materials().At(index).category != MaterialCategory::Steel;
                             }));
    material.AddProperty(MaterialValue(QStringLiteral("material.elasticModulus"),
                                       QStringLiteral("UI_PROP_ELASTIC_MODULUS"), QStringLiteral("MPa"), 0,
                                       &Material::elasticModulus));
    material.AddProperty(MaterialValue(QStringLiteral("material.shearModulus"),
                                       QStringLiteral("UI_PROP_SHEAR_MODULUS"), QStringLiteral("MPa"), 0,
                                       &Material::shearModulus)
                             .AsAdvanced());
    material.AddProperty(MaterialValue(QStringLiteral("material.density"), QStringLiteral("UI_PROP_DENSITY"),
                                       QStringLiteral("kg/m³"), 0, &Material::density)
                             .AsAdvanced());
    material.AddProperty(BindField(PropertyDefinition(QStringLiteral("display.color"), PropertyType::Color,
                                                      QStringLiteral("UI_PROP_COLOR"))
                                       .WithCategory(c_display)
                                       .WithDefault(QColor(0x2b, 0x34, 0x45)),
                                   &Material::color));
    return material;
}

} // namespace Orvo::Kernel::Framework
