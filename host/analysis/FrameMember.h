#pragma once

#include "HostKitExport.h"
#include "model/ModelRecords.h"

#include <array>
#include <cstdint>

namespace Orvo::Kernel::Analysis {

using Vector3 = std::array<double, 3>;
using Vector6 = std::array<double, 6>;
using Vector12 = std::array<double, 12>;
using Matrix12 = std::array<double, 144>; // row-major

// A member as the stiffness method sees it: a straight Euler-Bernoulli beam between two nodes,
// in kN and m. Its axes: x from the start to the end node; z in the vertical plane through x,
// pointing up (global x for a vertical member), turned with y by the member's rotation; y
// completes the right-handed set. Degrees of freedom at each end, in that order: ux, uy, uz,
// rx, ry, rz. Released end forces (a hinge) are condensed out of the stiffness.
class HOSTKIT_EXPORT FrameMember
{
public:
    Model::Number number = 0;
    std::int32_t startNode = 0; // positions in the frame model's nodes
    std::int32_t endNode = 0;
    double length = 0.0;
    std::array<Vector3, 3> axes {}; // x, y, z in global components
    double axialStiffness = 0.0; // EA, kN
    double bendingStiffnessY = 0.0; // EIy, kNm²: bending in the x-z plane
    double bendingStiffnessZ = 0.0; // EIz, kNm²: bending in the x-y plane
    double torsionalStiffness = 0.0; // GJ, kNm²
    double weightPerLength = 0.0; // kN/m
    Model::DofMask startReleases = 0;
    Model::DofMask endReleases = 0;

    // Sets length and axes from the end points and the rotation about x, in degrees.
    void SetGeometry(const Vector3& start, const Vector3& end, double rotationDegrees);

    Vector3 ToLocal(const Vector3& global) const;
    Vector3 ToGlobal(const Vector3& local) const;
    // Both ends' six components turned between global and member axes.
    Vector12 ToLocal(const Vector12& global) const;
    Vector12 ToGlobal(const Vector12& local) const;

    // The stiffness in member axes, with released end forces condensed out.
    Matrix12 LocalStiffness() const;
    // The stiffness in global axes.
    Matrix12 GlobalStiffness() const;
    // The forces the ends of the member, held fixed, take from a uniform load q (kN/m, member
    // axes), in member axes; released components are passed on to the others.
    Vector12 FixedEndForces(const Vector3& q) const;
    // The forces the nodes exert on the member's ends, in member axes, for the end displacements
    // (global axes) and a uniform load q in member axes.
    Vector12 EndForces(const Vector12& globalDisplacements, const Vector3& q) const;

    // The internal forces at x from the start (N, Vy, Vz, T, My, Mz): the forces the part beyond
    // x exerts on the part before it, in member axes (N is positive in tension).
    static Vector6 SectionForces(const Vector12& endForces, const Vector3& q, double x);

    bool HasReleases() const { return (startReleases | endReleases) != 0; }
};

} // namespace Orvo::Kernel::Analysis
