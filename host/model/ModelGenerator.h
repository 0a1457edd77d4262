#pragma once

#include "HostKitExport.h"
#include "Structure.h"

namespace Orvo::Kernel::Model {

// A portal frame: columns on a row of grid lines in the x-z plane, joined by beams at the eaves,
// fixed at their feet.
struct PortalFrameOptions
{
    int bays = 1;
    double span = 6.0; // m
    double height = 4.5; // m
};

// A multi-storey building: a grid of bays in x and y, storeys stacked in z, columns at every grid
// point, beams along every grid line of every floor, fixed at the ground.
struct BuildingOptions
{
    int baysX = 5;
    int baysY = 4;
    int storeys = 6;
    double bayWidthX = 6.0; // m
    double bayWidthY = 5.0; // m
    double storeyHeight = 3.5; // m
    int loadCases = 4; // dead, imposed, wind, snow; more cycle through imposed and wind patterns

    int MemberCount() const;
    // A building of about the given number of members, its plan and height growing together.
    static BuildingOptions ForMemberCount(int members);
};

// Fills a structure with a parametric model, replacing what it held: nodes, members, supports,
// an I-section for columns and one for beams, a steel and a concrete grade, load cases with
// member and nodal loads, and the usual ultimate and serviceability combinations.
class HOSTKIT_EXPORT ModelGenerator
{
public:
    static void PortalFrame(Structure& structure, const PortalFrameOptions& options);
    static void Building(Structure& structure, const BuildingOptions& options);
};

} // namespace Orvo::Kernel::Model
