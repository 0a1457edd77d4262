#include "StructuralObjectTypes.h"

#include "CommonProperties.h"
#include "LoadObjectTypes.h"
#include "SectionObjectTypes.h"

#include <array>

namespace Orvo::Kernel::Framework {

namespace {

using namespace Model;
using namespace Categories;

// The end conditions a user picks for a member end, as the member forces they release (N, Vy,
// Vz, T, My, Mz).
constexpr std::array<DofMask, 5> c_releaseChoices { 0, Dof(4) | Dof(5), Dof(4), Dof(5),
                                                    Dof(3) | Dof(4) | Dof(5) };

constexpr std::array<DofMask, 3> c_supportChoices { c_allDofs, c_translations, Dof(2) };

template<std::size_t N> std::int32_t ChoiceOf(const std::array<DofMask, N>& choices, DofMask mask)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (choices[i] == mask)
            return std::int32_t(i);
    }
    return std::int32_t(N);
}

PropertyDefinition Coordinate(const QString& key, const QString& nameId, double Node::*field)
{
    return BindField(Quantity(key, nameId, c_geometry, QStringLiteral("m"), 3)
                         .WithCategory(c_geometry, { QStringLiteral("UI_PROPERTIES_SUB_COORDINATES") })
                         .WithRange(-1.0e5, 1.0e5),
                     field);
}

PropertyDefinition Release(const QString& key, const QString& nameId, DofMask Member::*field)
{
    return PropertyDefinition(key, PropertyType::List, nameId)
        .WithCategory(c_releases)
        .WithChoices({ QStringLiteral("UI_CHOICE_RELEASE_RIGID"), QStringLiteral("UI_CHOICE_RELEASE_HINGE"),
                       QStringLiteral("UI_CHOICE_RELEASE_HINGE_Y"),
                       QStringLiteral("UI_CHOICE_RELEASE_HINGE_Z"),
                       QStringLiteral("UI_CHOICE_RELEASE_ALL_MOMENTS") })
        .WithDefault(std::int32_t { 0 })
        .AsAdvanced()
        .Bind(
            [field](const Structure& structure, std::size_t index) {
                return PropertyValue(ChoiceOf(c_releaseChoices, structure.Members().At(index).*field) % 5);
            },
            [field](Structure& structure, std::size_t index, const PropertyValue& value) {
                structure.Members().At(index).*field
                    = c_releaseChoices[std::size_t(std::get<std::int32_t>(value))];
                return ModelMessage();
            });
}

PropertyDefinition Fixity(int dof, const QString& nameId)
{
    return PropertyDefinition(QStringLiteral("support.fixed%1").arg(dof), PropertyType::Bool, nameId)
        .WithCategory(Categories::c_support, { QStringLiteral("UI_PROPERTIES_SUB_FIXITIES") })
        .AsAdvanced()
        .Bind(
            [dof](const Structure& structure, std::size_t index) {
                return PropertyValue((structure.Supports().At(index).fixed & Dof(dof)) != 0);
            },
            [dof](Structure& structure, std::size_t index, const PropertyValue& value) {
                DofMask& fixed = structure.Supports().At(index).fixed;
                fixed = std::get<bool>(value) ? DofMask(fixed | Dof(dof)) : DofMask(fixed & ~Dof(dof));
                return ModelMessage();
            });
}

PropertyDefinition Spring(int dof, const QString& nameId, const QString& units)
{
    return PropertyDefinition(QStringLiteral("support.spring%1").arg(dof), PropertyType::Real, nameId)
        .WithCategory(Categories::c_support, { QStringLiteral("UI_PROPERTIES_SUB_SPRINGS") })
        .WithUnits(units, 1)
        .WithRange(0.0, std::nullopt)
        .WithDefault(0.0)
        .WithRichTextName()
        .AsAdvanced()
        // A spring only acts where the support leaves the node free.
        .AppliesWhen([dof](const Structure& structure, std::size_t index) {
            return (structure.Supports().At(index).fixed & Dof(dof)) == 0;
        })
        .Bind(
            [dof](const Structure& structure, std::size_t index) {
                return PropertyValue(structure.Supports().At(index).springs[std::size_t(dof)]);
            },
            [dof](Structure& structure, std::size_t index, const PropertyValue& value) {
                structure.Supports().At(index).springs[std::size_t(dof)] = std::get<double>(value);
                return ModelMessage();
            });
}

} // namespace

std::vector<ObjectType> StructuralObjectTypes::CreateAll()
{
    std::vector<ObjectType> types;
    types.push_back(CreateNode());
    types.push_back(CreateMember());
    types.push_back(CreateSupport());
    types.push_back(SectionObjectTypes::CreateCrossSection());
    types.push_back(SectionObjectTypes::CreateMaterial());
    types.push_back(LoadObjectTypes::CreateLoadCase());
    types.push_back(LoadObjectTypes::CreateNodalLoad());
    types.push_back(LoadObjectTypes::CreateMemberLoad());
    types.push_back(LoadObjectTypes::CreateCombination());
    return types;
}

ObjectType StructuralObjectTypes::CreateNode()
{
    ObjectType node(ObjectKind::Node, c_node);
    AddNumberAndName<Node>(node);
    node.AddProperty(Coordinate(QStringLiteral("node.x"), QStringLiteral("UI_PROP_X"), &Node::x));
    node.AddProperty(Coordinate(QStringLiteral("node.y"), QStringLiteral("UI_PROP_Y"), &Node::y));
    node.AddProperty(Coordinate(QStringLiteral("node.z"), QStringLiteral("UI_PROP_Z"), &Node::z));
    node.AddAction({ QStringLiteral("node.placeOnGround"),
                     QStringLiteral("UI_PROPERTIES_ACTION_PLACE_ON_GROUND"),
                     [](Structure& structure, std::size_t index) { structure.Nodes().At(index).z = 0.0; },
                     QStringLiteral("node.z") });
    return node;
}

ObjectType StructuralObjectTypes::CreateMember()
{
    ObjectType member(ObjectKind::Member, c_member);
    AddNumberAndName<Member>(member);
    const QStringList nodes { QStringLiteral("UI_PROPERTIES_SUB_NODES") };
    member.AddProperty(BindField(
        Reference(QStringLiteral("member.startNode"), QStringLiteral("UI_PROP_START_NODE"), c_geometry)
            .WithCategory(c_geometry, nodes)
            .HiddenWhenValuesDiffer()
            .AsRequired(),
        &Member::startNode));
    member.AddProperty(
        BindField(Reference(QStringLiteral("member.endNode"), QStringLiteral("UI_PROP_END_NODE"), c_geometry)
                      .WithCategory(c_geometry, nodes)
                      .HiddenWhenValuesDiffer()
                      .AsRequired(),
                  &Member::endNode));
    member.AddProperty(BindComputed<Member>(
        Quantity(QStringLiteral("member.length"), QStringLiteral("UI_PROP_LENGTH"), c_geometry,
                 QStringLiteral("m"), 3),
        [](const Structure& structure, const Member& record) { return structure.MemberLength(record); }));
    member.AddProperty(
        BindField(Quantity(QStringLiteral("member.rotation"), QStringLiteral("UI_PROP_ROTATION"), c_geometry,
                           QStringLiteral("°"), 1)
                      .WithRange(-360.0, 360.0)
                      .WithDefault(0.0)
                      .AsAdvanced(),
                  &Member::rotation));
    member.AddProperty(
        BindField(Reference(QStringLiteral("member.section"), QStringLiteral("UI_PROP_CROSS_SECTION"),
                            Categories::c_crossSection),
                  &Member::section));
    member.AddProperty(BindField(Reference(QStringLiteral("member.material"),
                                           QStringLiteral("UI_PROP_MATERIAL"), Categories::c_material),
                                 &Member::material));
    member.AddProperty(Release(QStringLiteral("member.startRelease"), QStringLiteral("UI_PROP_RELEASE_START"),
                               &Member::startReleases));
    member.AddProperty(Release(QStringLiteral("member.endRelease"), QStringLiteral("UI_PROP_RELEASE_END"),
                               &Member::endReleases));
    member.AddAction({ QStringLiteral("member.reverse"),
                       QStringLiteral("UI_PROPERTIES_ACTION_REVERSE_MEMBER"),
                       [](Structure& structure, std::size_t index) {
                           Member& record = structure.Members().At(index);
                           std::swap(record.startNode, record.endNode);
                           std::swap(record.startReleases, record.endReleases);
                       },
                       QStringLiteral("member.startNode") });
    return member;
}

ObjectType StructuralObjectTypes::CreateSupport()
{
    ObjectType support(ObjectKind::Support, c_support);
    AddNumberAndName<Support>(support);
    support.AddProperty(BindField(
        Reference(QStringLiteral("support.node"), QStringLiteral("UI_PROP_NODE"), Categories::c_support)
            .AsRequired(),
        &Support::node));
    support.AddProperty(
        PropertyDefinition(QStringLiteral("support.type"), PropertyType::List,
                           QStringLiteral("UI_PROP_SUPPORT_TYPE"))
            .WithCategory(Categories::c_support)
            .WithChoices(
                { QStringLiteral("UI_CHOICE_SUPPORT_FIXED"), QStringLiteral("UI_CHOICE_SUPPORT_PINNED"),
                  QStringLiteral("UI_CHOICE_SUPPORT_ROLLER"), QStringLiteral("UI_CHOICE_SUPPORT_CUSTOM") })
            .WithDefault(std::int32_t { 0 })
            .WithIllustration(QStringLiteral("Illustrations/SupportTypes.qml"))
            .Bind(
                [](const Structure& structure, std::size_t index) {
                    return PropertyValue(ChoiceOf(c_supportChoices, structure.Supports().At(index).fixed));
                },
                [](Structure& structure, std::size_t index, const PropertyValue& value) {
                    // "Custom" names the fixities as they are: choosing it changes nothing.
                    const auto choice = std::size_t(std::get<std::int32_t>(value));
                    if (choice < c_supportChoices.size())
                        structure.Supports().At(index).fixed = c_supportChoices[choice];
                    return ModelMessage();
                }));
    const char* fixities[] = { "UI_PROP_FIXED_UX", "UI_PROP_FIXED_UY", "UI_PROP_FIXED_UZ",
                               "UI_PROP_FIXED_RX", "UI_PROP_FIXED_RY", "UI_PROP_FIXED_RZ" };
    for (int dof = 0; dof < 6; ++dof)
        support.AddProperty(Fixity(dof, QString::fromLatin1(fixities[dof])));
    const char* springs[] = { "UI_PROP_SPRING_X",     "UI_PROP_SPRING_Y",     "UI_PROP_SPRING_Z",
                              "UI_PROP_SPRING_ROT_X", "UI_PROP_SPRING_ROT_Y", "UI_PROP_SPRING_ROT_Z" };
    for (int dof = 0; dof < 6; ++dof)
        support.AddProperty(Spring(dof, QString::fromLatin1(springs[dof]),
                                   dof < 3 ? QStringLiteral("kN/m") : QStringLiteral("kNm/rad")));
    return support;
}

} // namespace Orvo::Kernel::Framework
