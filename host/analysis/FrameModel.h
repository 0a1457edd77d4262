#pragma once

#include "FrameMember.h"
#include "HostKitExport.h"
#include "model/ModelMessage.h"
#include "model/Structure.h"

#include <QString>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Analysis {

// A node with the equation of each of its degrees of freedom (-1 where a support holds it).
struct FrameNode
{
    Model::Number number = 0;
    Vector3 position {};
    std::array<std::int32_t, 6> equations { -1, -1, -1, -1, -1, -1 };
    Vector6 springs {}; // on free degrees of freedom, kN/m and kNm/rad
};

struct FrameSupport
{
    Model::Number number = 0;
    std::int32_t node = 0;
    Model::DofMask fixed = 0;
};

struct FrameNodalLoad
{
    std::int32_t node = 0;
    Vector6 values {}; // global Fx, Fy, Fz (kN), Mx, My, Mz (kNm)
};

// The uniform load on one member in one load case, everything on it summed, in member axes.
struct FrameLineLoad
{
    std::int32_t member = 0;
    Vector3 q {}; // kN/m
};

struct FrameLoadCase
{
    Model::Number number = 0;
    QString name;
    std::vector<FrameNodalLoad> nodalLoads;
    std::vector<FrameLineLoad> lineLoads; // in ascending member order, one per loaded member
};

struct FrameCombination
{
    Model::Number number = 0;
    QString name;
    std::vector<std::pair<std::int32_t, double>> terms; // load case position, factor
};

// The structure as the stiffness method works on it: positions instead of numbers, section and
// material values in kN and m, loads per member, equations numbered. Built once per analysis from
// a snapshot of the structure, so the user may go on editing meanwhile.
class HOSTKIT_EXPORT FrameModel
{
public:
    // The frame model, or null and why the structure cannot be analysed (nothing to analyse, a
    // reference to nothing, a node that neither a member nor a support holds).
    static std::shared_ptr<const FrameModel> Build(const Model::Structure& structure,
                                                   Model::ModelMessage& why);

    static constexpr double c_gravity = 9.80665; // m/s²

    std::vector<FrameNode> nodes;
    std::vector<FrameMember> members;
    std::vector<FrameSupport> supports;
    std::vector<FrameLoadCase> loadCases;
    std::vector<FrameCombination> combinations;
    std::int32_t equationCount = 0;

    // The node and degree of freedom an equation belongs to.
    std::pair<std::int32_t, int> DegreeOfFreedom(std::int32_t equation) const;
    // The line load on a member in a load case; zero when it has none.
    Vector3 LineLoad(std::size_t loadCase, std::int32_t member) const;
};

} // namespace Orvo::Kernel::Analysis
