#include "GLSceneBuffers.h"

#include "GLPrograms.h"
#include "ScenePalette.h"
#include "StructureScene.h"

#include <QOpenGLExtraFunctions>
#include <cstring>

namespace Orvo::Graphic {

namespace {

static_assert(sizeof(LineVertex) == 16, "line vertices are read as 3 floats and 4 bytes");

void Upload(QOpenGLExtraFunctions& gl, std::uint32_t buffer, const void* data, std::size_t bytes)
{
    gl.glBindBuffer(GL_ARRAY_BUFFER, buffer);
    gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(bytes), data, GL_STATIC_DRAW);
}

const void* Offset(std::size_t bytes)
{
    return reinterpret_cast<const void*>(bytes);
}

} // namespace

void GLSceneBuffers::Update(QOpenGLExtraFunctions& gl, const StructureScene& scene)
{
    if (scene.GeometryRevision() == m_revision)
        return;
    m_revision = scene.GeometryRevision();
    if (!m_members) {
        GLuint names[4] = {};
        gl.glGenBuffers(4, names);
        m_members = names[0];
        m_nodes = names[1];
        m_instances = names[2];
        m_stream = names[3];
    }

    const auto& positions = scene.NodePositions();
    const auto& members = scene.Members();
    std::vector<LineVertex> lines;
    lines.reserve(members.size() * 2);
    for (const auto& member : members) {
        lines.push_back({ positions[member.startNode], member.color });
        lines.push_back({ positions[member.endNode], member.color });
    }
    Upload(gl, m_members, lines.data(), lines.size() * sizeof(LineVertex));

    std::vector<LineVertex> nodes;
    nodes.reserve(positions.size());
    for (const QVector3D& position : positions)
        nodes.push_back({ position, Palette::c_node });
    Upload(gl, m_nodes, nodes.data(), nodes.size() * sizeof(LineVertex));
    m_nodeCount = nodes.size();

    std::vector<unsigned char> instances(members.size() * c_instanceStride);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const auto& frame = scene.Frames()[i];
        float record[12];
        const QVector3D* vectors[4] = { &frame.start, &frame.axisX, &frame.axisY, &frame.axisZ };
        for (int v = 0; v < 4; ++v) {
            for (int axis = 0; axis < 3; ++axis)
                record[v * 3 + axis] = (*vectors[v])[axis];
        }
        std::memcpy(&instances[i * c_instanceStride], record, sizeof(record));
        std::memcpy(&instances[i * c_instanceStride + sizeof(record)], &members[i].color, 4);
    }
    Upload(gl, m_instances, instances.data(), instances.size());

    if (!m_meshes.empty())
        gl.glDeleteBuffers(GLsizei(m_meshes.size()), m_meshes.data());
    m_meshes.assign(scene.Profiles().size(), 0);
    m_meshVertexCounts.assign(scene.Profiles().size(), 0);
    if (!m_meshes.empty())
        gl.glGenBuffers(GLsizei(m_meshes.size()), m_meshes.data());
    for (std::size_t i = 0; i < m_meshes.size(); ++i) {
        const auto& mesh = scene.Profiles()[i].Mesh();
        static_assert(sizeof(SectionProfile::MeshVertex) == 24, "mesh vertices are read as 6 floats");
        Upload(gl, m_meshes[i], mesh.data(), mesh.size() * sizeof(SectionProfile::MeshVertex));
        m_meshVertexCounts[i] = int(mesh.size());
    }
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void GLSceneBuffers::Destroy(QOpenGLExtraFunctions& gl)
{
    const GLuint names[4] = { m_members, m_nodes, m_instances, m_stream };
    if (m_members)
        gl.glDeleteBuffers(4, names);
    if (!m_meshes.empty())
        gl.glDeleteBuffers(GLsizei(m_meshes.size()), m_meshes.data());
    *this = GLSceneBuffers();
}

void GLSceneBuffers::BindLineVertices(QOpenGLExtraFunctions& gl, std::uint32_t buffer)
{
    gl.glBindBuffer(GL_ARRAY_BUFFER, buffer);
    gl.glEnableVertexAttribArray(GLPrograms::c_position);
    gl.glEnableVertexAttribArray(GLPrograms::c_color);
    gl.glVertexAttribPointer(GLPrograms::c_position, 3, GL_FLOAT, GL_FALSE, sizeof(LineVertex), Offset(0));
    gl.glVertexAttribPointer(GLPrograms::c_color, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(LineVertex),
                             Offset(12));
}

void GLSceneBuffers::BindMemberLines(QOpenGLExtraFunctions& gl) const
{
    BindLineVertices(gl, m_members);
}

void GLSceneBuffers::BindNodes(QOpenGLExtraFunctions& gl) const
{
    BindLineVertices(gl, m_nodes);
}

void GLSceneBuffers::BindSolids(QOpenGLExtraFunctions& gl, std::uint32_t profile,
                                std::uint32_t firstMember) const
{
    constexpr GLsizei c_meshStride = sizeof(SectionProfile::MeshVertex);
    gl.glBindBuffer(GL_ARRAY_BUFFER, m_meshes[profile]);
    gl.glEnableVertexAttribArray(GLPrograms::c_position);
    gl.glEnableVertexAttribArray(GLPrograms::c_normal);
    gl.glVertexAttribPointer(GLPrograms::c_position, 3, GL_FLOAT, GL_FALSE, c_meshStride, Offset(0));
    gl.glVertexAttribPointer(GLPrograms::c_normal, 3, GL_FLOAT, GL_FALSE, c_meshStride, Offset(12));

    gl.glBindBuffer(GL_ARRAY_BUFFER, m_instances);
    const std::size_t base = std::size_t(firstMember) * c_instanceStride;
    const GLuint vectors[4] = { GLPrograms::c_instanceStart, GLPrograms::c_instanceAxisX,
                                GLPrograms::c_instanceAxisY, GLPrograms::c_instanceAxisZ };
    for (int v = 0; v < 4; ++v) {
        gl.glEnableVertexAttribArray(vectors[v]);
        gl.glVertexAttribPointer(vectors[v], 3, GL_FLOAT, GL_FALSE, c_instanceStride,
                                 Offset(base + std::size_t(v) * 12));
        gl.glVertexAttribDivisor(vectors[v], 1);
    }
    gl.glEnableVertexAttribArray(GLPrograms::c_instanceColor);
    gl.glVertexAttribPointer(GLPrograms::c_instanceColor, 4, GL_UNSIGNED_BYTE, GL_TRUE, c_instanceStride,
                             Offset(base + 48));
    gl.glVertexAttribDivisor(GLPrograms::c_instanceColor, 1);
}

int GLSceneBuffers::Stream(QOpenGLExtraFunctions& gl, const std::vector<LineVertex>& vertices)
{
    const std::size_t bytes = vertices.size() * sizeof(LineVertex);
    gl.glBindBuffer(GL_ARRAY_BUFFER, m_stream);
    // A fresh store each frame: the driver need not wait for the last frame's draws.
    gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(std::max(bytes, m_streamCapacity)), nullptr, GL_STREAM_DRAW);
    m_streamCapacity = std::max(bytes, m_streamCapacity);
    if (bytes > 0)
        gl.glBufferSubData(GL_ARRAY_BUFFER, 0, GLsizeiptr(bytes), vertices.data());
    BindLineVertices(gl, m_stream);
    return int(vertices.size());
}

} // namespace Orvo::Graphic
