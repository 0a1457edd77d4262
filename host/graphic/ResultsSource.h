#pragma once

#include "geometry/Point3D.h"
#include "model/ObjectIds.h"

#include <optional>
#include <vector>

namespace Orvo::Graphic {

// Internal force components in a member's local axes.
enum class ForceComponent
{
    None,
    AxialForce, // N
    ShearY, // Vy
    ShearZ, // Vz
    Torsion, // Mt
    MomentY, // My, bending about local y: drawn in the member's x-z plane
    MomentZ, // Mz, bending about local z: drawn in the x-y plane
};

// Where the views find the analysis's results. The analysis installs one in the graphics
// service; without it, or without results for a case, the views show the model alone.
class ResultsSource
{
public:
    virtual ~ResultsSource() = default;

    // Whether results exist for the load case or combination.
    virtual bool HasResults(Kernel::Model::ObjectId resultCase) const = 0;
    // The node's translation in metres, global axes.
    virtual std::optional<Geometry::Point3D> NodeDisplacement(Kernel::Model::ObjectId resultCase,
                                                              Kernel::Model::Number node) const = 0;
    // The component's values (kN, kNm) at stations points spread evenly from the member's start
    // to its end; empty when the member has none.
    virtual std::vector<double> MemberForces(Kernel::Model::ObjectId resultCase, Kernel::Model::Number member,
                                             ForceComponent component, int stations) const = 0;
};

} // namespace Orvo::Graphic
