#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <cstdint>
#include <tuple>
#include <utility>
#include <vector>

namespace Orvo::Kernel::Model {

// An object's number within its kind: 1, 2, 3, ... in order of creation, never reused.
using Number = std::int32_t;

enum class ObjectKind : std::int32_t
{
    Node = 1,
    Member,
    Support,
    CrossSection,
    Material,
    LoadCase,
    NodalLoad,
    MemberLoad,
    Combination,
};
inline constexpr std::array<ObjectKind, 9> c_allKinds { ObjectKind::Node,       ObjectKind::Member,
                                                        ObjectKind::Support,    ObjectKind::CrossSection,
                                                        ObjectKind::Material,   ObjectKind::LoadCase,
                                                        ObjectKind::NodalLoad,  ObjectKind::MemberLoad,
                                                        ObjectKind::Combination };

// One bit per degree of freedom of a node, in the order ux, uy, uz, rx, ry, rz.
using DofMask = std::uint8_t;
inline constexpr DofMask c_allDofs = 0b111111;
inline constexpr DofMask c_translations = 0b000111;
inline constexpr DofMask Dof(int index)
{
    return DofMask(1u << index);
}

// The records are plain values kept in one contiguous array per kind, sorted by number, so that
// a model of a million members costs a few dozen bytes per member and no allocation of its own.
// Lengths are in metres, section dimensions in millimetres, stresses and moduli in MPa, forces
// in kN and moments in kNm.

struct Node
{
    static constexpr ObjectKind c_kind = ObjectKind::Node;
    Number number = 0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    QString name;

    auto Tie() const { return std::tie(number, x, y, z, name); }
};

struct Member
{
    static constexpr ObjectKind c_kind = ObjectKind::Member;
    Number number = 0;
    Number startNode = 0;
    Number endNode = 0;
    Number section = 0;
    Number material = 0;
    double rotation = 0.0; // degrees about the member's axis
    DofMask startReleases = 0; // end forces released, in the member's local axes
    DofMask endReleases = 0;
    QString name;

    auto Tie() const
    {
        return std::tie(number, startNode, endNode, section, material, rotation, startReleases, endReleases,
                        name);
    }
};

struct Support
{
    static constexpr ObjectKind c_kind = ObjectKind::Support;
    Number number = 0;
    Number node = 0;
    DofMask fixed = c_allDofs;
    std::array<double, 6> springs {}; // kN/m and kNm/rad, on free degrees of freedom
    QString name;

    auto Tie() const { return std::tie(number, node, fixed, springs, name); }
};

enum class SectionShape : std::int32_t
{
    I = 0,
    RectangularHollow,
    CircularHollow,
    Rectangle,
    Circle,
};

struct CrossSection
{
    static constexpr ObjectKind c_kind = ObjectKind::CrossSection;
    Number number = 0;
    SectionShape shape = SectionShape::I;
    double height = 300.0;
    double width = 150.0;
    double flangeThickness = 10.7;
    double webThickness = 7.1;
    double wallThickness = 10.0;
    double diameter = 300.0;
    QString name;

    auto Tie() const
    {
        return std::tie(number, shape, height, width, flangeThickness, webThickness, wallThickness, diameter,
                        name);
    }
};

enum class MaterialCategory : std::int32_t
{
    Steel = 0,
    Concrete,
    Timber,
};

struct Material
{
    static constexpr ObjectKind c_kind = ObjectKind::Material;
    Number number = 0;
    MaterialCategory category = MaterialCategory::Steel;
    std::int32_t grade = 0; // within the category's grades; -1 for values of the user's own
    double elasticModulus = 210000.0;
    double shearModulus = 81000.0;
    double density = 7850.0; // kg/m³
    double strength = 235.0; // yield strength of steel, characteristic strength otherwise
    QColor color { 0x2b, 0x34, 0x45 };
    QString name;

    auto Tie() const
    {
        return std::tie(number, category, grade, elasticModulus, shearModulus, density, strength, color,
                        name);
    }
};

enum class LoadCategory : std::int32_t
{
    Permanent = 0,
    Imposed,
    Snow,
    Wind,
};

struct LoadCase
{
    static constexpr ObjectKind c_kind = ObjectKind::LoadCase;
    Number number = 0;
    LoadCategory category = LoadCategory::Permanent;
    bool selfWeight = false;
    QColor color { 0xb7, 0x79, 0x1f };
    QString name;

    auto Tie() const { return std::tie(number, category, selfWeight, color, name); }
};

// Forces and moments on a node, in global axes.
struct NodalLoad
{
    static constexpr ObjectKind c_kind = ObjectKind::NodalLoad;
    Number number = 0;
    Number loadCase = 0;
    Number node = 0;
    std::array<double, 6> values {}; // Fx, Fy, Fz in kN, Mx, My, Mz in kNm

    auto Tie() const { return std::tie(number, loadCase, node, values); }
};

enum class LoadDirection : std::int32_t
{
    GlobalX = 0,
    GlobalY,
    GlobalZ,
    LocalY,
    LocalZ,
};

// A uniform line load over a member's whole length, in kN/m.
struct MemberLoad
{
    static constexpr ObjectKind c_kind = ObjectKind::MemberLoad;
    Number number = 0;
    Number loadCase = 0;
    Number member = 0;
    LoadDirection direction = LoadDirection::GlobalZ;
    double value = 0.0;

    auto Tie() const { return std::tie(number, loadCase, member, direction, value); }
};

// A factored sum of load cases.
struct Combination
{
    static constexpr ObjectKind c_kind = ObjectKind::Combination;
    Number number = 0;
    std::vector<std::pair<Number, double>> factors; // load case, factor
    QString name;

    auto Tie() const { return std::tie(number, factors, name); }
};

// Records compare field by field (undo keeps only what really changed).
template<class Record, class = decltype(Record::c_kind)> bool operator==(const Record& a, const Record& b)
{
    return a.Tie() == b.Tie();
}
template<class Record, class = decltype(Record::c_kind)> bool operator!=(const Record& a, const Record& b)
{
    return !(a == b);
}

} // namespace Orvo::Kernel::Model
