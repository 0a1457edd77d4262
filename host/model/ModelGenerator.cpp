#include "ModelGenerator.h"

#include "MaterialCatalog.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Kernel::Model {

namespace {

// The steel sections and grades every generated model starts from.
struct Catalogue
{
    Number columnSection;
    Number beamSection;
    Number steel;
};

Catalogue AddSectionsAndMaterials(Structure& structure)
{
    CrossSection column;
    column.name = QStringLiteral("HEB 300");
    column.height = 300.0;
    column.width = 300.0;
    column.flangeThickness = 19.0;
    column.webThickness = 11.0;
    CrossSection beam;
    beam.name = QStringLiteral("IPE 400");
    beam.height = 400.0;
    beam.width = 180.0;
    beam.flangeThickness = 13.5;
    beam.webThickness = 8.6;
    Catalogue catalogue;
    catalogue.columnSection = structure.Sections().Append(column);
    catalogue.beamSection = structure.Sections().Append(beam);

    Material steel;
    steel.name = QStringLiteral("S355");
    catalogue.steel = structure.Materials().Append(MaterialCatalog::WithGrade(steel, 2));
    Material concrete;
    concrete.category = MaterialCategory::Concrete;
    concrete.name = QStringLiteral("C30/37");
    concrete.color = QColor(0x8c, 0x85, 0x7e);
    structure.Materials().Append(MaterialCatalog::WithGrade(concrete, 2));
    return catalogue;
}

Number AddLoadCase(Structure& structure, LoadCategory category, const QString& name, bool selfWeight)
{
    LoadCase loadCase;
    loadCase.category = category;
    loadCase.name = name;
    loadCase.selfWeight = selfWeight;
    static const QColor colours[] = { QColor(0xb7, 0x79, 0x1f), QColor(0x20, 0x6e, 0xb7),
                                      QColor(0x29, 0xa1, 0x6e), QColor(0x75, 0x1a, 0x7c) };
    loadCase.color = colours[int(category) % 4];
    return structure.LoadCases().Append(loadCase);
}

void AddMember(Structure& structure, Number start, Number end, Number section, Number material)
{
    Member member;
    member.startNode = start;
    member.endNode = end;
    member.section = section;
    member.material = material;
    structure.Members().Append(member);
}

void AddFixedSupport(Structure& structure, Number node)
{
    Support support;
    support.node = node;
    structure.Supports().Append(support);
}

void AddCombinations(Structure& structure, const std::vector<Number>& cases)
{
    // Ultimate: 1.35 permanent + 1.5 leading variable + 0.75 accompanying variables.
    Combination ultimate;
    ultimate.name = QStringLiteral("ULS 1");
    Combination characteristic;
    characteristic.name = QStringLiteral("SLS 1");
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const bool permanent = i == 0;
        ultimate.factors.push_back({ cases[i], permanent ? 1.35 : (i == 1 ? 1.5 : 0.75) });
        characteristic.factors.push_back({ cases[i], permanent || i == 1 ? 1.0 : 0.5 });
    }
    structure.Combinations().Append(ultimate);
    structure.Combinations().Append(characteristic);
}

void AddMemberLoad(Structure& structure, Number loadCase, Number member, double value)
{
    MemberLoad load;
    load.loadCase = loadCase;
    load.member = member;
    load.direction = LoadDirection::GlobalZ;
    load.value = value;
    structure.MemberLoads().Append(load);
}

void AddNodalLoad(Structure& structure, Number loadCase, Number node, int direction, double value)
{
    NodalLoad load;
    load.loadCase = loadCase;
    load.node = node;
    load.values[std::size_t(direction)] = value;
    structure.NodalLoads().Append(load);
}

} // namespace

int BuildingOptions::MemberCount() const
{
    const int gridPoints = (baysX + 1) * (baysY + 1);
    const int beamsPerFloor = baysX * (baysY + 1) + baysY * (baysX + 1);
    return storeys * (gridPoints + beamsPerFloor);
}

BuildingOptions BuildingOptions::ForMemberCount(int members)
{
    BuildingOptions options;
    // About three members per grid point and storey. A plan of b × b bays and about b / 3
    // storeys: big buildings spread more than they rise, and a flatter frame also needs far less
    // work to factorise than a cube of the same size.
    const int side = std::max(1, int(std::cbrt(std::max(1, members))));
    options.baysX = side;
    options.baysY = side;
    options.storeys = 1;
    const int perStorey = options.MemberCount();
    options.storeys = std::max(1, int(std::lround(double(members) / perStorey)));
    return options;
}

void ModelGenerator::PortalFrame(Structure& structure, const PortalFrameOptions& options)
{
    structure.Clear();
    const Catalogue catalogue = AddSectionsAndMaterials(structure);
    const int bays = std::max(1, options.bays);
    std::vector<Number> feet;
    std::vector<Number> eaves;
    for (int i = 0; i <= bays; ++i) {
        feet.push_back(structure.Nodes().Append({ 0, i * options.span, 0.0, 0.0, {} }));
        eaves.push_back(structure.Nodes().Append({ 0, i * options.span, 0.0, options.height, {} }));
    }
    for (int i = 0; i <= bays; ++i) {
        AddFixedSupport(structure, feet[std::size_t(i)]);
        AddMember(structure, feet[std::size_t(i)], eaves[std::size_t(i)], catalogue.columnSection,
                  catalogue.steel);
    }
    std::vector<Number> beams;
    for (int i = 0; i < bays; ++i) {
        AddMember(structure, eaves[std::size_t(i)], eaves[std::size_t(i) + 1], catalogue.beamSection,
                  catalogue.steel);
        beams.push_back(structure.Members().NextNumber() - 1);
    }
    const Number dead = AddLoadCase(structure, LoadCategory::Permanent, QStringLiteral("Dead load"), true);
    const Number imposed
        = AddLoadCase(structure, LoadCategory::Imposed, QStringLiteral("Imposed load"), false);
    const Number wind = AddLoadCase(structure, LoadCategory::Wind, QStringLiteral("Wind"), false);
    for (Number beam : beams) {
        AddMemberLoad(structure, dead, beam, -2.0);
        AddMemberLoad(structure, imposed, beam, -5.0);
    }
    AddNodalLoad(structure, wind, eaves.front(), 0, 10.0);
    AddCombinations(structure, { dead, imposed, wind });
}

void ModelGenerator::Building(Structure& structure, const BuildingOptions& options)
{
    structure.Clear();
    const Catalogue catalogue = AddSectionsAndMaterials(structure);
    const int nx = std::max(1, options.baysX) + 1;
    const int ny = std::max(1, options.baysY) + 1;
    const int levels = std::max(1, options.storeys) + 1;
    const auto node = [nx, ny](int i, int j, int level) { return Number(1 + i + nx * (j + ny * level)); };

    structure.Nodes().Reserve(std::size_t(nx) * ny * levels);
    for (int level = 0; level < levels; ++level) {
        for (int j = 0; j < ny; ++j) {
            for (int i = 0; i < nx; ++i)
                structure.Nodes().Append(
                    { 0, i * options.bayWidthX, j * options.bayWidthY, level * options.storeyHeight, {} });
        }
    }
    for (int j = 0; j < ny; ++j) {
        for (int i = 0; i < nx; ++i)
            AddFixedSupport(structure, node(i, j, 0));
    }

    std::vector<Number> beams;
    structure.Members().Reserve(std::size_t(options.MemberCount()));
    for (int level = 1; level < levels; ++level) {
        for (int j = 0; j < ny; ++j) {
            for (int i = 0; i < nx; ++i)
                AddMember(structure, node(i, j, level - 1), node(i, j, level), catalogue.columnSection,
                          catalogue.steel);
        }
        for (int j = 0; j < ny; ++j) {
            for (int i = 0; i + 1 < nx; ++i) {
                AddMember(structure, node(i, j, level), node(i + 1, j, level), catalogue.beamSection,
                          catalogue.steel);
                beams.push_back(structure.Members().NextNumber() - 1);
            }
        }
        for (int i = 0; i < nx; ++i) {
            for (int j = 0; j + 1 < ny; ++j) {
                AddMember(structure, node(i, j, level), node(i, j + 1, level), catalogue.beamSection,
                          catalogue.steel);
                beams.push_back(structure.Members().NextNumber() - 1);
            }
        }
    }

    // Load cases: dead load with self-weight, then imposed, wind and snow patterns in turn.
    std::vector<Number> cases;
    const int caseCount = std::max(1, options.loadCases);
    structure.MemberLoads().Reserve(beams.size() * std::size_t(caseCount));
    for (int c = 0; c < caseCount; ++c) {
        const int pattern = c == 0 ? 0 : 1 + (c - 1) % 3;
        const int round = c == 0 ? 0 : (c - 1) / 3;
        const QString suffix = round > 0 ? QStringLiteral(" %1").arg(round + 1) : QString();
        switch (pattern) {
        case 0: {
            cases.push_back(
                AddLoadCase(structure, LoadCategory::Permanent, QStringLiteral("Dead load"), true));
            for (Number beam : beams)
                AddMemberLoad(structure, cases.back(), beam, -2.0);
            break;
        }
        case 1: {
            cases.push_back(AddLoadCase(structure, LoadCategory::Imposed,
                                        QStringLiteral("Imposed load") + suffix, false));
            // Later rounds load every other bay, the patterns a designer checks.
            for (std::size_t b = 0; b < beams.size(); ++b) {
                if (round == 0 || b % 2 == std::size_t(round % 2))
                    AddMemberLoad(structure, cases.back(), beams[b], -5.0);
            }
            break;
        }
        case 2: {
            cases.push_back(
                AddLoadCase(structure, LoadCategory::Wind, QStringLiteral("Wind") + suffix, false));
            const int direction = round % 2; // x, then y
            for (int level = 1; level < levels; ++level) {
                for (int k = 0; k < (direction == 0 ? ny : nx); ++k)
                    AddNodalLoad(structure, cases.back(),
                                 direction == 0 ? node(0, k, level) : node(k, 0, level), direction, 8.0);
            }
            break;
        }
        default: {
            cases.push_back(
                AddLoadCase(structure, LoadCategory::Snow, QStringLiteral("Snow") + suffix, false));
            const std::size_t beamsPerFloor = beams.size() / std::size_t(levels - 1);
            for (std::size_t b = beams.size() - beamsPerFloor; b < beams.size(); ++b)
                AddMemberLoad(structure, cases.back(), beams[b], -1.5);
            break;
        }
        }
    }
    AddCombinations(structure, cases);
}

} // namespace Orvo::Kernel::Model
