#pragma once

#include "HostKitExport.h"
#include "SceneBox.h"
#include "SectionProfile.h"
#include "geometry/Point3D.h"
#include "model/ObjectIds.h"
#include "model/Structure.h"

#include <QVector3D>
#include <cstdint>
#include <optional>
#include <vector>

namespace Orvo::Graphic {

// A vertex of a line: where, and its colour as 0xAARRGGBB.
struct LineVertex
{
    QVector3D position;
    std::uint32_t color = 0;
};

// The structural model as the renderers and the picking see it: positions relative to the
// scene's origin in single precision, members ordered by the cell of space they lie in (and
// by section within a cell), so that a view skips a whole cell out of sight and draws a cell's
// members as one run.
class HOSTKIT_EXPORT StructureScene
{
public:
    struct Member
    {
        std::uint32_t startNode = 0; // indices into NodePositions()
        std::uint32_t endNode = 0;
        std::uint32_t profile = 0; // index into Profiles()
        std::uint32_t color = 0;
        Kernel::Model::Number number = 0;
    };

    // A member's local axes: x from start to end (its length included), y across and z up in
    // its section, both of unit length, rotated by the member's rotation.
    struct MemberFrame
    {
        QVector3D start;
        QVector3D axisX;
        QVector3D axisY;
        QVector3D axisZ;
    };

    // Members [first, first + count) of one section.
    struct Run
    {
        std::uint32_t profile = 0;
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };

    struct Cell
    {
        std::uint32_t first = 0; // members [first, first + count)
        std::uint32_t count = 0;
        std::uint32_t firstRun = 0; // runs [firstRun, firstRun + runCount)
        std::uint32_t runCount = 0;
        SceneBox box;
    };

    struct Support
    {
        std::uint32_t node = 0;
        Kernel::Model::DofMask fixed = 0;
        Kernel::Model::Number number = 0;
    };

    struct NodalLoad
    {
        std::uint32_t node = 0;
        Kernel::Model::Number loadCase = 0;
        QVector3D force; // kN
    };

    struct MemberLoad
    {
        std::uint32_t member = 0; // index into Members()
        Kernel::Model::Number loadCase = 0;
        QVector3D direction; // unit, in the scene's axes
        float value = 0.0f; // kN/m
    };

    // Members a cell holds at most, about: few enough that a cell out of sight saves work,
    // many enough that the renderers' per-cell overhead stays small.
    static constexpr std::size_t c_membersPerCell = 512;

    void Build(const Kernel::Model::Structure& structure);
    // Marks the objects of the selection; ids of objects the scene does not draw are ignored.
    void ApplySelection(const std::vector<Kernel::Model::ObjectId>& selection);

    Geometry::Point3D Origin() const { return m_origin; }
    QVector3D ToScene(const Geometry::Point3D& point) const;
    Geometry::Point3D ToModel(const QVector3D& point) const;
    const SceneBox& Bounds() const { return m_bounds; }

    const std::vector<QVector3D>& NodePositions() const { return m_nodePositions; }
    const std::vector<Kernel::Model::Number>& NodeNumbers() const { return m_nodeNumbers; }
    const std::vector<Member>& Members() const { return m_members; }
    const std::vector<MemberFrame>& Frames() const { return m_frames; }
    const std::vector<SectionProfile>& Profiles() const { return m_profiles; }
    const std::vector<Cell>& Cells() const { return m_cells; }
    const std::vector<Run>& Runs() const { return m_runs; }
    const std::vector<Support>& Supports() const { return m_supports; }
    const std::vector<NodalLoad>& NodalLoads() const { return m_nodalLoads; }
    const std::vector<MemberLoad>& MemberLoads() const { return m_memberLoads; }
    const std::vector<Kernel::Model::Number>& LoadCases() const { return m_loadCases; }
    // The colour the user gave the load case, 0xAARRGGBB; the loads' default for unknown cases.
    std::uint32_t LoadCaseColor(Kernel::Model::Number loadCase) const;
    // The largest force of a nodal load and the largest member load, for scaling arrows.
    float LargestNodalForce() const { return m_largestNodalForce; }
    float LargestMemberLoad() const { return m_largestMemberLoad; }

    bool IsMemberSelected(std::size_t member) const { return m_memberSelected[member] != 0; }
    bool IsNodeSelected(std::size_t node) const { return m_nodeSelected[node] != 0; }
    const std::vector<std::uint32_t>& SelectedMembers() const { return m_selectedMembers; }
    const std::vector<std::uint32_t>& SelectedNodes() const { return m_selectedNodes; }
    bool IsSupportSelected(std::size_t support) const { return m_supportSelected[support] != 0; }
    // The box around the selected objects; empty without a selection.
    SceneBox SelectionBounds() const;

    std::optional<std::uint32_t> FindNode(Kernel::Model::Number number) const;
    std::optional<std::uint32_t> FindMember(Kernel::Model::Number number) const;
    Kernel::Model::ObjectId NodeId(std::uint32_t node) const;
    Kernel::Model::ObjectId MemberId(std::uint32_t member) const;
    Kernel::Model::ObjectId SupportId(std::uint32_t support) const;

    // Change with every Build and ApplySelection, so that a renderer knows when what it keeps
    // on the graphics card is out of date.
    std::uint64_t GeometryRevision() const { return m_geometryRevision; }
    std::uint64_t SelectionRevision() const { return m_selectionRevision; }

private:
    void BuildNodes(const Kernel::Model::Structure& structure);
    void BuildMembers(const Kernel::Model::Structure& structure);
    void BuildCells();
    void BuildLoads(const Kernel::Model::Structure& structure);
    MemberFrame FrameOf(const Kernel::Model::Member& member, const QVector3D& start,
                        const QVector3D& end) const;

    Geometry::Point3D m_origin;
    SceneBox m_bounds;
    std::vector<QVector3D> m_nodePositions;
    std::vector<Kernel::Model::Number> m_nodeNumbers;
    std::vector<Member> m_members;
    std::vector<MemberFrame> m_frames;
    std::vector<SectionProfile> m_profiles;
    std::vector<Cell> m_cells;
    std::vector<Run> m_runs;
    std::vector<Support> m_supports;
    std::vector<NodalLoad> m_nodalLoads;
    std::vector<MemberLoad> m_memberLoads;
    std::vector<Kernel::Model::Number> m_loadCases;
    std::vector<std::uint32_t> m_loadCaseColors;
    float m_largestNodalForce = 0.0f;
    float m_largestMemberLoad = 0.0f;
    // Member numbers by position in members, for finding a member's place by binary search.
    std::vector<std::pair<Kernel::Model::Number, std::uint32_t>> m_memberByNumber;

    std::vector<std::uint8_t> m_memberSelected;
    std::vector<std::uint8_t> m_nodeSelected;
    std::vector<std::uint8_t> m_supportSelected;
    std::vector<std::uint32_t> m_selectedMembers;
    std::vector<std::uint32_t> m_selectedNodes;

    std::uint64_t m_geometryRevision = 0;
    std::uint64_t m_selectionRevision = 0;
};

} // namespace Orvo::Graphic
