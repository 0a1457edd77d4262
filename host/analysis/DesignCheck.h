#pragma once

#include "AnalysisResults.h"
#include "HostKitExport.h"
#include "model/Structure.h"

#include <cstddef>
#include <vector>

namespace Orvo::Kernel::Analysis {

// One member's check: the largest elastic stress anywhere along it, in any load case or
// combination, against its material's strength.
struct MemberDesign
{
    Model::Number member = 0;
    double stress = 0.0; // MPa
    double strength = 0.0; // MPa
    double utilisation = 0.0; // stress / strength
    std::size_t set = 0; // the governing result set (position in AnalysisResults::Sets)
    double x = 0.0; // m from the member's start

    bool Passes() const { return utilisation <= 1.0; }
};

struct DesignOutcome
{
    std::vector<MemberDesign> members; // in the order of the structure's members
    double maxUtilisation = 0.0;
    Model::Number governingMember = 0; // 0 when there are no members
    std::size_t failingCount = 0;

    bool Passes() const { return failingCount == 0; }
};

// A first design check of every member: the elastic stress |N|/A + |My|/Wy + |Mz|/Wz against the
// material's strength (steel's yield strength, the characteristic strength of concrete and
// timber). It leaves out shear, torsion, buckling and the partial factors of a design code, so
// it tells where a section is plainly too small rather than that it is adequate.
class HOSTKIT_EXPORT DesignCheck
{
public:
    // The structure must be the one results were computed for: members are matched by position.
    static DesignOutcome Run(const Model::Structure& structure, const AnalysisResults& results);

    // Where along a member of length length the stress can peak under a uniform load: the ends,
    // where a shear force changes sign (a moment's extreme), and points between so that the sum
    // of two moments peaking apart is not missed.
    static std::vector<double> Stations(const Vector6& start, const Vector6& end, double length);
};

} // namespace Orvo::Kernel::Analysis
