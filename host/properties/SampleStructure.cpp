#include "SampleStructure.h"

#include "StructuralModel.h"
#include "StructuralObjectTypes.h"

namespace Orvo::Kernel::Framework {

namespace {

struct SampleNode
{
    const char* name;
    double x, z;
    std::int32_t support;
};

struct SampleMember
{
    const char* name;
    std::int32_t start, end;
    double height, width;
    std::int32_t material;
    double yieldStrength;
};

struct SampleLoadCase
{
    const char* name;
    std::int32_t actionCategory;
    bool selfWeight;
    double partialFactor;
};

} // namespace

void SampleStructure::Fill(StructuralModel& model)
{
    if (!model.FindType(StructuralObjectTypes::c_node))
        StructuralObjectTypes::RegisterAll(model);

    constexpr SampleNode nodes[] = {
        { "Base left", 0.0, 0.0, 2 }, { "Base middle", 6.0, 0.0, 1 }, { "Base right", 12.0, 0.0, 1 },
        { "Eave left", 0.0, 4.5, 0 }, { "Ridge", 6.0, 5.2, 0 },       { "Eave right", 12.0, 4.5, 0 },
    };
    std::vector<ObjectId> nodeIds;
    for (const SampleNode& node : nodes) {
        const ObjectId id = model.AddObject(StructuralObjectTypes::c_node);
        model.Assign(id, QStringLiteral("general.name"), QString::fromUtf8(node.name));
        model.Assign(id, QStringLiteral("node.x"), node.x);
        model.Assign(id, QStringLiteral("node.z"), node.z);
        model.Assign(id, QStringLiteral("node.supportType"), node.support);
        nodeIds.push_back(id);
    }
    model.Assign(nodeIds[1], QStringLiteral("node.springZ"), 25000.0);

    const SampleMember members[] = {
        { "Column left", nodeIds[0], nodeIds[3], 300.0, 150.0, 0, 235.0 },
        { "Column middle", nodeIds[1], nodeIds[4], 300.0, 150.0, 1, 355.0 },
        { "Column right", nodeIds[2], nodeIds[5], 300.0, 150.0, 0, 235.0 },
        { "Rafter left", nodeIds[3], nodeIds[4], 400.0, 180.0, 1, 355.0 },
        { "Rafter right", nodeIds[4], nodeIds[5], 400.0, 180.0, 1, 355.0 },
    };
    for (const SampleMember& member : members) {
        const ObjectId id = model.AddObject(StructuralObjectTypes::c_member);
        model.Assign(id, QStringLiteral("general.name"), QString::fromUtf8(member.name));
        model.Assign(id, QStringLiteral("member.startNode"), member.start);
        model.Assign(id, QStringLiteral("member.endNode"), member.end);
        model.Assign(id, QStringLiteral("member.height"), member.height);
        model.Assign(id, QStringLiteral("member.width"), member.width);
        model.Assign(id, QStringLiteral("member.material"), member.material);
        model.Assign(id, QStringLiteral("member.yieldStrength"), member.yieldStrength);
    }

    constexpr SampleLoadCase loadCases[] = {
        { "Dead load", 0, true, 1.35 },
        { "Imposed load", 1, false, 1.5 },
        { "Snow", 2, false, 1.5 },
    };
    for (const SampleLoadCase& loadCase : loadCases) {
        const ObjectId id = model.AddObject(StructuralObjectTypes::c_loadCase);
        model.Assign(id, QStringLiteral("general.name"), QString::fromUtf8(loadCase.name));
        model.Assign(id, QStringLiteral("loadCase.actionCategory"), loadCase.actionCategory);
        model.Assign(id, QStringLiteral("loadCase.selfWeight"), loadCase.selfWeight);
        model.Assign(id, QStringLiteral("loadCase.partialFactor"), loadCase.partialFactor);
    }
}

} // namespace Orvo::Kernel::Framework
