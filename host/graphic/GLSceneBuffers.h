#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

class QOpenGLExtraFunctions;

namespace Orvo::Graphic {

class StructureScene;
struct LineVertex;

// The scene on the graphics card: members as line vertices in the scene's order, nodes as
// points, one instance record per member for solids and one mesh per section, uploaded again
// only when the scene's geometry changed. A stream buffer takes each frame's own vertices.
class GLSceneBuffers
{
public:
    // Bytes of one instance record: start, axis x, axis y, axis z (three floats each), colour.
    static constexpr int c_instanceStride = 13 * 4;

    void Update(QOpenGLExtraFunctions& gl, const StructureScene& scene);
    void Destroy(QOpenGLExtraFunctions& gl);

    // Binds the buffer's line vertices to the line program's attributes from vertex first on.
    void BindMemberLines(QOpenGLExtraFunctions& gl) const;
    void BindNodes(QOpenGLExtraFunctions& gl) const;
    // Binds the mesh of a section and the instance records from member first on.
    void BindSolids(QOpenGLExtraFunctions& gl, std::uint32_t profile, std::uint32_t firstMember) const;
    int MeshVertexCount(std::uint32_t profile) const { return m_meshVertexCounts[profile]; }
    std::size_t NodeCount() const { return m_nodeCount; }
    // Uploads vertices into the stream buffer and binds them; returns their count.
    int Stream(QOpenGLExtraFunctions& gl, const std::vector<LineVertex>& vertices);

private:
    static void BindLineVertices(QOpenGLExtraFunctions& gl, std::uint32_t buffer);

    std::uint64_t m_revision = std::numeric_limits<std::uint64_t>::max();
    std::uint32_t m_members = 0;
    std::uint32_t m_nodes = 0;
    std::uint32_t m_instances = 0;
    std::uint32_t m_stream = 0;
    std::vector<std::uint32_t> m_meshes;
    std::vector<int> m_meshVertexCounts;
    std::size_t m_nodeCount = 0;
    std::size_t m_streamCapacity = 0;
};

} // namespace Orvo::Graphic
