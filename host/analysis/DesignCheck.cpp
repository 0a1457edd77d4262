#include "DesignCheck.h"

#include "model/SectionProperties.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Kernel::Analysis {

namespace {

// Equal parts a member is divided into besides the ends and the shear zeros.
constexpr int c_divisions = 10;
// The section forces' positions: N, Vy, Vz, T, My, Mz.
constexpr std::size_t c_normal = 0;
constexpr std::size_t c_shearY = 1;
constexpr std::size_t c_shearZ = 2;
constexpr std::size_t c_momentY = 4;
constexpr std::size_t c_momentZ = 5;
// kN over mm² and kNm over mm³ in MPa.
constexpr double c_forceToNewtons = 1e3;
constexpr double c_momentToNewtonMillimetres = 1e6;

// Where a shear force that varies linearly from atStart to atEnd is zero, strictly inside.
void AddShearZero(double atStart, double atEnd, double length, std::vector<double>& stations)
{
    if ((atStart < 0.0 && atEnd > 0.0) || (atStart > 0.0 && atEnd < 0.0))
        stations.push_back(length * atStart / (atStart - atEnd));
}

// The stress in MPa of section forces (kN, kNm) on a section (mm², mm³). A section modulus of
// zero (a degenerate section the validator let through) carries no moment.
double Stress(const Vector6& forces, const Model::SectionProperties& section)
{
    double stress = section.area > 0.0 ? std::abs(forces[c_normal]) * c_forceToNewtons / section.area : 0.0;
    if (section.wy > 0.0)
        stress += std::abs(forces[c_momentY]) * c_momentToNewtonMillimetres / section.wy;
    if (section.wz > 0.0)
        stress += std::abs(forces[c_momentZ]) * c_momentToNewtonMillimetres / section.wz;
    return stress;
}

} // namespace

std::vector<double> DesignCheck::Stations(const Vector6& start, const Vector6& end, double length)
{
    std::vector<double> stations;
    stations.reserve(c_divisions + 3);
    for (int i = 0; i <= c_divisions; ++i)
        stations.push_back(length * i / c_divisions);
    AddShearZero(start[c_shearY], end[c_shearY], length, stations);
    AddShearZero(start[c_shearZ], end[c_shearZ], length, stations);
    return stations;
}

DesignOutcome DesignCheck::Run(const Model::Structure& structure, const AnalysisResults& results)
{
    DesignOutcome outcome;
    const auto& records = structure.Members().Records();
    const FrameModel& frame = results.Frame();
    const std::size_t count = std::min(records.size(), frame.members.size());
    outcome.members.reserve(count);
    for (std::size_t position = 0; position < count; ++position) {
        const Model::Member& record = records[position];
        const FrameMember& member = frame.members[position];
        const Model::CrossSection* section = structure.Sections().Find(record.section);
        const Model::Material* material = structure.Materials().Find(record.material);
        if (!section || !material)
            continue;
        const Model::SectionProperties properties = Model::SectionProperties::Of(*section);
        MemberDesign design;
        design.member = record.number;
        design.strength = material->strength;
        for (std::size_t set = 0; set < results.Sets().size(); ++set) {
            const Vector6 atStart = results.SectionForces(set, position, 0.0);
            const Vector6 atEnd = results.SectionForces(set, position, member.length);
            for (double x : Stations(atStart, atEnd, member.length)) {
                const double stress = Stress(results.SectionForces(set, position, x), properties);
                if (stress > design.stress) {
                    design.stress = stress;
                    design.set = set;
                    design.x = x;
                }
            }
        }
        // A material without strength cannot carry anything.
        design.utilisation = design.strength > 0.0 ? design.stress / design.strength
                                                   : (design.stress > 0.0 ? HUGE_VAL : 0.0);
        if (!design.Passes())
            ++outcome.failingCount;
        if (outcome.governingMember == 0 || design.utilisation > outcome.maxUtilisation) {
            outcome.maxUtilisation = design.utilisation;
            outcome.governingMember = design.member;
        }
        outcome.members.push_back(design);
    }
    return outcome;
}

} // namespace Orvo::Kernel::Analysis
