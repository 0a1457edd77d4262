#include "StructureScene.h"

#include "ScenePalette.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace Model = Kernel::Model;

namespace {

// Cells per axis at most: beyond that the per-cell work outweighs what culling saves.
constexpr int c_maxCellsPerAxis = 64;
// A member whose direction is this close to vertical takes its section's orientation from the
// global x axis instead of the vertical.
constexpr float c_verticalCosine = 0.999f;
// Drawn for a member whose section does not exist.
constexpr double c_fallbackSectionSize = 100.0; // mm

QVector3D Direction(Model::LoadDirection direction, const StructureScene::MemberFrame& frame)
{
    switch (direction) {
    case Model::LoadDirection::GlobalX:
        return { 1, 0, 0 };
    case Model::LoadDirection::GlobalY:
        return { 0, 1, 0 };
    case Model::LoadDirection::GlobalZ:
        return { 0, 0, 1 };
    case Model::LoadDirection::LocalY:
        return frame.axisY;
    case Model::LoadDirection::LocalZ:
        return frame.axisZ;
    }
    return { 0, 0, 1 };
}

} // namespace

void StructureScene::Build(const Model::Structure& structure)
{
    BuildNodes(structure);
    BuildMembers(structure);
    BuildCells();
    BuildLoads(structure);
    m_memberSelected.assign(m_members.size(), 0);
    m_nodeSelected.assign(m_nodePositions.size(), 0);
    m_supportSelected.assign(m_supports.size(), 0);
    m_selectedMembers.clear();
    m_selectedNodes.clear();
    ++m_geometryRevision;
    ++m_selectionRevision;
}

void StructureScene::BuildNodes(const Model::Structure& structure)
{
    const auto& nodes = structure.Nodes().Records();
    double low[3] = { 0, 0, 0 };
    double high[3] = { 0, 0, 0 };
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const double point[3] = { nodes[i].x, nodes[i].y, nodes[i].z };
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = i == 0 ? point[axis] : std::min(low[axis], point[axis]);
            high[axis] = i == 0 ? point[axis] : std::max(high[axis], point[axis]);
        }
    }
    // Single precision is enough around the model's centre, not at survey coordinates.
    m_origin = { (low[0] + high[0]) / 2.0, (low[1] + high[1]) / 2.0, (low[2] + high[2]) / 2.0 };
    m_bounds = SceneBox();
    m_nodePositions.clear();
    m_nodeNumbers.clear();
    m_nodePositions.reserve(nodes.size());
    m_nodeNumbers.reserve(nodes.size());
    for (const auto& node : nodes) {
        m_nodePositions.push_back(ToScene({ node.x, node.y, node.z }));
        m_nodeNumbers.push_back(node.number);
        m_bounds.Add(m_nodePositions.back());
    }
}

void StructureScene::BuildMembers(const Model::Structure& structure)
{
    m_profiles.clear();
    for (const auto& section : structure.Sections().Records())
        m_profiles.push_back(SectionProfile::FromSection(section));
    Model::CrossSection fallback;
    fallback.shape = Model::SectionShape::Rectangle;
    fallback.height = fallback.width = c_fallbackSectionSize;
    const auto fallbackProfile = std::uint32_t(m_profiles.size());
    m_profiles.push_back(SectionProfile::FromSection(fallback));

    m_members.clear();
    m_frames.clear();
    const auto& members = structure.Members().Records();
    m_members.reserve(members.size());
    m_frames.reserve(members.size());
    for (const auto& member : members) {
        const auto start = structure.Nodes().IndexOf(member.startNode);
        const auto end = structure.Nodes().IndexOf(member.endNode);
        if (!start || !end)
            continue;
        const auto section = structure.Sections().IndexOf(member.section);
        const auto* material = structure.Materials().Find(member.material);
        Member item;
        item.startNode = std::uint32_t(*start);
        item.endNode = std::uint32_t(*end);
        item.profile = section ? std::uint32_t(*section) : fallbackProfile;
        item.color = material ? material->color.rgba() : Palette::c_member;
        item.number = member.number;
        m_members.push_back(item);
        m_frames.push_back(FrameOf(member, m_nodePositions[item.startNode], m_nodePositions[item.endNode]));
    }
}

void StructureScene::BuildCells()
{
    // A grid over the members' box, as many cells as the members fill, shaped like the box: a
    // flat frame gets a flat grid.
    const QVector3D extent = m_bounds.IsEmpty() ? QVector3D() : m_bounds.maximum - m_bounds.minimum;
    const float largest = std::max({ extent.x(), extent.y(), extent.z(), 1e-3f });
    const double wanted = std::max<double>(1.0, double(m_members.size()) / c_membersPerCell);
    double volume = 1.0;
    int spanned = 0;
    for (int axis = 0; axis < 3; ++axis) {
        if (extent[axis] > largest * 1e-3f) {
            volume *= extent[axis];
            ++spanned;
        }
    }
    const double cellSize = spanned == 0 ? largest : std::pow(volume / wanted, 1.0 / spanned);
    int counts[3];
    for (int axis = 0; axis < 3; ++axis)
        counts[axis] = extent[axis] > largest * 1e-3f
            ? std::clamp(int(std::ceil(extent[axis] / cellSize)), 1, c_maxCellsPerAxis)
            : 1;
    const std::size_t cellCount = std::size_t(counts[0]) * counts[1] * counts[2];

    auto cellOf = [&](const Member& member) {
        const QVector3D middle = (m_nodePositions[member.startNode] + m_nodePositions[member.endNode]) * 0.5f;
        std::size_t index = 0;
        for (int axis = 2; axis >= 0; --axis) {
            const float relative
                = extent[axis] > 0.0f ? (middle[axis] - m_bounds.minimum[axis]) / extent[axis] : 0.0f;
            const int cell = std::clamp(int(relative * counts[axis]), 0, counts[axis] - 1);
            index = index * std::size_t(counts[axis]) + std::size_t(cell);
        }
        return index;
    };

    // Counting sort by cell, then section: one pass to count, one to place.
    const std::size_t profileCount = m_profiles.size();
    std::vector<std::uint32_t> keys(m_members.size());
    std::vector<std::uint32_t> starts(cellCount * profileCount + 1, 0);
    for (std::size_t i = 0; i < m_members.size(); ++i) {
        keys[i] = std::uint32_t(cellOf(m_members[i]) * profileCount + m_members[i].profile);
        ++starts[keys[i] + 1];
    }
    for (std::size_t key = 1; key < starts.size(); ++key)
        starts[key] += starts[key - 1];
    std::vector<Member> members(m_members.size());
    std::vector<MemberFrame> frames(m_frames.size());
    std::vector<std::uint32_t> next(starts.begin(), starts.end() - 1);
    for (std::size_t i = 0; i < m_members.size(); ++i) {
        const std::uint32_t place = next[keys[i]]++;
        members[place] = m_members[i];
        frames[place] = m_frames[i];
    }
    m_members = std::move(members);
    m_frames = std::move(frames);

    m_cells.clear();
    m_runs.clear();
    for (std::size_t cell = 0; cell < cellCount; ++cell) {
        Cell item;
        item.first = starts[cell * profileCount];
        item.count = starts[(cell + 1) * profileCount] - item.first;
        if (item.count == 0)
            continue;
        item.firstRun = std::uint32_t(m_runs.size());
        for (std::size_t profile = 0; profile < profileCount; ++profile) {
            const std::uint32_t first = starts[cell * profileCount + profile];
            const std::uint32_t count = starts[cell * profileCount + profile + 1] - first;
            if (count > 0)
                m_runs.push_back({ std::uint32_t(profile), first, count });
        }
        item.runCount = std::uint32_t(m_runs.size()) - item.firstRun;
        for (std::uint32_t i = item.first; i < item.first + item.count; ++i) {
            item.box.Add(m_nodePositions[m_members[i].startNode]);
            item.box.Add(m_nodePositions[m_members[i].endNode]);
        }
        m_cells.push_back(item);
    }

    m_memberByNumber.clear();
    m_memberByNumber.reserve(m_members.size());
    for (std::size_t i = 0; i < m_members.size(); ++i)
        m_memberByNumber.emplace_back(m_members[i].number, std::uint32_t(i));
    std::sort(m_memberByNumber.begin(), m_memberByNumber.end());
}

void StructureScene::BuildLoads(const Model::Structure& structure)
{
    m_supports.clear();
    for (const auto& support : structure.Supports().Records()) {
        if (const auto node = structure.Nodes().IndexOf(support.node))
            m_supports.push_back({ std::uint32_t(*node), support.fixed, support.number });
    }

    m_loadCases.clear();
    m_loadCaseColors.clear();
    for (const auto& loadCase : structure.LoadCases().Records()) {
        m_loadCases.push_back(loadCase.number);
        m_loadCaseColors.push_back(loadCase.color.rgba());
    }

    m_nodalLoads.clear();
    m_largestNodalForce = 0.0f;
    for (const auto& load : structure.NodalLoads().Records()) {
        const auto node = structure.Nodes().IndexOf(load.node);
        const QVector3D force(float(load.values[0]), float(load.values[1]), float(load.values[2]));
        if (!node || force.isNull())
            continue;
        m_nodalLoads.push_back({ std::uint32_t(*node), load.loadCase, force });
        m_largestNodalForce = std::max(m_largestNodalForce, force.length());
    }

    m_memberLoads.clear();
    m_largestMemberLoad = 0.0f;
    for (const auto& load : structure.MemberLoads().Records()) {
        const auto member = FindMember(load.member);
        if (!member || load.value == 0.0 || !std::isfinite(load.value))
            continue;
        const QVector3D direction = Direction(load.direction, m_frames[*member]);
        m_memberLoads.push_back({ *member, load.loadCase, direction, float(load.value) });
        m_largestMemberLoad = std::max(m_largestMemberLoad, std::abs(float(load.value)));
    }
}

StructureScene::MemberFrame StructureScene::FrameOf(const Model::Member& member, const QVector3D& start,
                                                    const QVector3D& end) const
{
    MemberFrame frame;
    frame.start = start;
    frame.axisX = end - start;
    const float length = frame.axisX.length();
    if (length <= 0.0f) {
        frame.axisY = { 0, 1, 0 };
        frame.axisZ = { 0, 0, 1 };
        return frame;
    }
    const QVector3D along = frame.axisX / length;
    const QVector3D reference
        = std::abs(along.z()) > c_verticalCosine ? QVector3D(1, 0, 0) : QVector3D(0, 0, 1);
    const QVector3D across = QVector3D::crossProduct(reference, along).normalized();
    const QVector3D up = QVector3D::crossProduct(along, across);
    const float angle = qDegreesToRadians(float(member.rotation));
    frame.axisY = across * std::cos(angle) + up * std::sin(angle);
    frame.axisZ = up * std::cos(angle) - across * std::sin(angle);
    return frame;
}

void StructureScene::ApplySelection(const std::vector<Model::ObjectId>& selection)
{
    std::fill(m_memberSelected.begin(), m_memberSelected.end(), 0);
    std::fill(m_nodeSelected.begin(), m_nodeSelected.end(), 0);
    std::fill(m_supportSelected.begin(), m_supportSelected.end(), 0);
    m_selectedMembers.clear();
    m_selectedNodes.clear();
    for (const Model::ObjectId id : selection) {
        if (!Model::IsKnownKind(id))
            continue;
        const Model::Number number = Model::NumberOf(id);
        switch (Model::KindOf(id)) {
        case Model::ObjectKind::Node:
            if (const auto node = FindNode(number); node && !m_nodeSelected[*node]) {
                m_nodeSelected[*node] = 1;
                m_selectedNodes.push_back(*node);
            }
            break;
        case Model::ObjectKind::Member:
            if (const auto member = FindMember(number); member && !m_memberSelected[*member]) {
                m_memberSelected[*member] = 1;
                m_selectedMembers.push_back(*member);
            }
            break;
        case Model::ObjectKind::Support: {
            const auto support
                = std::find_if(m_supports.begin(), m_supports.end(),
                               [number](const Support& item) { return item.number == number; });
            if (support != m_supports.end())
                m_supportSelected[std::size_t(support - m_supports.begin())] = 1;
            break;
        }
        default:
            break;
        }
    }
    ++m_selectionRevision;
}

std::uint32_t StructureScene::LoadCaseColor(Model::Number loadCase) const
{
    const auto it = std::find(m_loadCases.begin(), m_loadCases.end(), loadCase);
    return it == m_loadCases.end() ? Palette::c_load
                                   : m_loadCaseColors[std::size_t(it - m_loadCases.begin())];
}

SceneBox StructureScene::SelectionBounds() const
{
    SceneBox box;
    for (const std::uint32_t node : m_selectedNodes)
        box.Add(m_nodePositions[node]);
    for (const std::uint32_t member : m_selectedMembers) {
        box.Add(m_nodePositions[m_members[member].startNode]);
        box.Add(m_nodePositions[m_members[member].endNode]);
    }
    for (std::size_t support = 0; support < m_supports.size(); ++support) {
        if (m_supportSelected[support])
            box.Add(m_nodePositions[m_supports[support].node]);
    }
    return box;
}

QVector3D StructureScene::ToScene(const Geometry::Point3D& point) const
{
    return QVector3D(float(point.x - m_origin.x), float(point.y - m_origin.y), float(point.z - m_origin.z));
}

Geometry::Point3D StructureScene::ToModel(const QVector3D& point) const
{
    return { double(point.x()) + m_origin.x, double(point.y()) + m_origin.y, double(point.z()) + m_origin.z };
}

std::optional<std::uint32_t> StructureScene::FindNode(Model::Number number) const
{
    const auto it = std::lower_bound(m_nodeNumbers.begin(), m_nodeNumbers.end(), number);
    if (it == m_nodeNumbers.end() || *it != number)
        return std::nullopt;
    return std::uint32_t(it - m_nodeNumbers.begin());
}

std::optional<std::uint32_t> StructureScene::FindMember(Model::Number number) const
{
    const auto it = std::lower_bound(m_memberByNumber.begin(), m_memberByNumber.end(),
                                     std::make_pair(number, std::uint32_t(0)));
    if (it == m_memberByNumber.end() || it->first != number)
        return std::nullopt;
    return it->second;
}

Model::ObjectId StructureScene::NodeId(std::uint32_t node) const
{
    return Model::MakeObjectId(Model::ObjectKind::Node, m_nodeNumbers[node]);
}

Model::ObjectId StructureScene::MemberId(std::uint32_t member) const
{
    return Model::MakeObjectId(Model::ObjectKind::Member, m_members[member].number);
}

Model::ObjectId StructureScene::SupportId(std::uint32_t support) const
{
    return Model::MakeObjectId(Model::ObjectKind::Support, m_supports[support].number);
}

} // namespace Orvo::Graphic
