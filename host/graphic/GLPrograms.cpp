#include "GLPrograms.h"

#include "GraphicLogging.h"

#include <QByteArray>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <initializer_list>
#include <utility>

namespace Orvo::Graphic {

namespace {

const char* const c_lineVertexShader = R"(
in vec3 position;
in vec4 color;
uniform mat4 transform;
uniform float pointSize;
out vec4 vertexColor;
void main()
{
    gl_Position = transform * vec4(position, 1.0);
    gl_PointSize = pointSize;
    vertexColor = color.zyxw;
}
)";

// Flat shading without derivatives: the normal is the face's, every vertex of a face has it.
const char* const c_solidVertexShader = R"(
in vec3 position;
in vec3 normal;
in vec3 start;
in vec3 axisX;
in vec3 axisY;
in vec3 axisZ;
in vec4 color;
uniform mat4 transform;
uniform vec3 light;
out vec4 vertexColor;
void main()
{
    vec3 world = start + axisX * position.x + axisY * position.y + axisZ * position.z;
    float axisLength = max(length(axisX), 1e-6);
    vec3 turned = normalize(axisX / axisLength * normal.x + axisY * normal.y + axisZ * normal.z);
    float facing = abs(dot(turned, light));
    vec3 surface = color.zyx + (vec3(1.0) - color.zyx) * 0.45;
    vertexColor = vec4(surface * (0.35 + 0.65 * facing), 1.0);
    gl_Position = transform * vec4(world, 1.0);
}
)";

const char* const c_fragmentShader = R"(
in vec4 vertexColor;
out vec4 fragmentColor;
void main()
{
    fragmentColor = vertexColor;
}
)";

QByteArray VersionHeader(const QOpenGLContext& context)
{
    if (context.isOpenGLES())
        return "#version 300 es\nprecision highp float;\n";
    const auto version = context.format().version();
    if (version >= qMakePair(3, 3))
        return "#version 330\n";
    return "#version 130\n";
}

GLuint Compile(QOpenGLExtraFunctions& gl, GLenum type, const QByteArray& source)
{
    const GLuint shader = gl.glCreateShader(type);
    const char* text = source.constData();
    gl.glShaderSource(shader, 1, &text, nullptr);
    gl.glCompileShader(shader);
    GLint compiled = 0;
    gl.glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (!compiled) {
        char log[1024] = {};
        gl.glGetShaderInfoLog(shader, sizeof(log), nullptr, log);
        qCWarning(GraphicLogging()) << "A shader of the OpenGL renderer does not compile:" << log;
        gl.glDeleteShader(shader);
        return 0;
    }
    return shader;
}

GLuint Link(QOpenGLExtraFunctions& gl, const QByteArray& header, const char* vertexSource,
            std::initializer_list<std::pair<GLuint, const char*>> attributes)
{
    const GLuint vertex = Compile(gl, GL_VERTEX_SHADER, header + vertexSource);
    const GLuint fragment = Compile(gl, GL_FRAGMENT_SHADER, header + c_fragmentShader);
    if (!vertex || !fragment) {
        gl.glDeleteShader(vertex);
        gl.glDeleteShader(fragment);
        return 0;
    }
    const GLuint program = gl.glCreateProgram();
    gl.glAttachShader(program, vertex);
    gl.glAttachShader(program, fragment);
    for (const auto& [location, name] : attributes)
        gl.glBindAttribLocation(program, location, name);
    gl.glLinkProgram(program);
    gl.glDeleteShader(vertex);
    gl.glDeleteShader(fragment);
    GLint linked = 0;
    gl.glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (!linked) {
        char log[1024] = {};
        gl.glGetProgramInfoLog(program, sizeof(log), nullptr, log);
        qCWarning(GraphicLogging()) << "A shader program of the OpenGL renderer does not link:" << log;
        gl.glDeleteProgram(program);
        return 0;
    }
    return program;
}

} // namespace

bool GLPrograms::Create(QOpenGLContext& context)
{
    QOpenGLExtraFunctions& gl = *context.extraFunctions();
    const QByteArray header = VersionHeader(context);
    m_lines = Link(gl, header, c_lineVertexShader, { { c_position, "position" }, { c_color, "color" } });
    m_solids = Link(gl, header, c_solidVertexShader,
                    { { c_position, "position" },
                      { c_normal, "normal" },
                      { c_instanceStart, "start" },
                      { c_instanceAxisX, "axisX" },
                      { c_instanceAxisY, "axisY" },
                      { c_instanceAxisZ, "axisZ" },
                      { c_instanceColor, "color" } });
    if (!m_lines || !m_solids) {
        Destroy(gl);
        return false;
    }
    m_linesTransform = gl.glGetUniformLocation(m_lines, "transform");
    m_linesPointSize = gl.glGetUniformLocation(m_lines, "pointSize");
    m_solidsTransform = gl.glGetUniformLocation(m_solids, "transform");
    m_solidsLight = gl.glGetUniformLocation(m_solids, "light");
    return true;
}

void GLPrograms::Destroy(QOpenGLExtraFunctions& gl)
{
    gl.glDeleteProgram(m_lines);
    gl.glDeleteProgram(m_solids);
    m_lines = m_solids = 0;
}

void GLPrograms::UseLines(QOpenGLExtraFunctions& gl, const QMatrix4x4& transform, float pointSize) const
{
    gl.glUseProgram(m_lines);
    gl.glUniformMatrix4fv(m_linesTransform, 1, GL_FALSE, transform.constData());
    gl.glUniform1f(m_linesPointSize, pointSize);
}

void GLPrograms::UseSolids(QOpenGLExtraFunctions& gl, const QMatrix4x4& transform,
                           const QVector3D& light) const
{
    gl.glUseProgram(m_solids);
    gl.glUniformMatrix4fv(m_solidsTransform, 1, GL_FALSE, transform.constData());
    gl.glUniform3f(m_solidsLight, light.x(), light.y(), light.z());
}

} // namespace Orvo::Graphic
