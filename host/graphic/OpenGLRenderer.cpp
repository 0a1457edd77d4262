#include "OpenGLRenderer.h"

#include "FramePlan.h"
#include "GLPrograms.h"
#include "GLSceneBuffers.h"
#include "GraphicLogging.h"
#include "RenderView.h"
#include "ScenePalette.h"
#include "StructureScene.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <algorithm>

#ifndef GL_PROGRAM_POINT_SIZE
#define GL_PROGRAM_POINT_SIZE 0x8642
#endif

namespace Orvo::Graphic {

namespace {

constexpr float c_nodeSize = 3.0f;
constexpr float c_emphasisNodeSize = 7.0f;
constexpr float c_emphasisLineWidth = 2.0f;

std::vector<LineVertex> BackgroundQuad()
{
    // Two triangles over the whole frame in normalised device coordinates.
    const LineVertex topLeft { { -1, 1, 0 }, Palette::c_backgroundTop };
    const LineVertex topRight { { 1, 1, 0 }, Palette::c_backgroundTop };
    const LineVertex bottomLeft { { -1, -1, 0 }, Palette::c_backgroundBottom };
    const LineVertex bottomRight { { 1, -1, 0 }, Palette::c_backgroundBottom };
    return { topLeft, bottomLeft, bottomRight, topLeft, bottomRight, topRight };
}

} // namespace

OpenGLRenderer::OpenGLRenderer(bool shareCurrentContext, int samples)
    : m_shareCurrentContext(shareCurrentContext)
    , m_samples(std::max(0, samples))
    , m_programs(std::make_unique<GLPrograms>())
    , m_buffers(std::make_unique<GLSceneBuffers>())
{ }

OpenGLRenderer::~OpenGLRenderer() = default;

bool OpenGLRenderer::Initialize()
{
    QOpenGLContext* share = QOpenGLContext::currentContext();
    if (!m_shareCurrentContext || !share) {
        qCWarning(GraphicLogging())
            << "The OpenGL renderer needs the window's OpenGL context current to share it";
        return false;
    }
    m_surface = share->surface();
    m_context = std::make_unique<QOpenGLContext>();
    m_context->setShareContext(share);
    m_context->setFormat(share->format());
    if (!m_context->create() || !MakeCurrent()) {
        qCWarning(GraphicLogging()) << "The OpenGL renderer could not create its context";
        m_context.reset();
        return false;
    }
    m_gl = m_context->extraFunctions();
    const bool capable = m_context->format().majorVersion() >= 3 && m_programs->Create(*m_context);
    if (capable)
        m_gl->glGenVertexArrays(1, &m_vertexArray);
    else
        qCWarning(GraphicLogging()) << "The OpenGL renderer needs OpenGL 3 or OpenGL ES 3; the context has"
                                    << m_context->format().majorVersion()
                                    << m_context->format().minorVersion();
    RestoreCurrent();
    if (!capable)
        m_context.reset();
    return capable;
}

void OpenGLRenderer::Release()
{
    if (!m_context)
        return;
    if (MakeCurrent()) {
        m_programs->Destroy(*m_gl);
        m_buffers->Destroy(*m_gl);
        DeleteFramebuffer();
        m_gl->glDeleteVertexArrays(1, &m_vertexArray);
        m_vertexArray = 0;
        RestoreCurrent();
    } else {
        qCWarning(GraphicLogging())
            << "The OpenGL renderer's objects could not be deleted: no surface to work on";
    }
    m_context.reset();
    m_gl = nullptr;
}

void OpenGLRenderer::Render(const FramePlan& plan, const StructureScene& scene, RenderView& view)
{
    if (!m_context || !MakeCurrent())
        return;
    QOpenGLExtraFunctions& gl = *m_gl;
    ResizeFramebuffer(plan.size);
    m_buffers->Update(gl, scene);
    gl.glBindVertexArray(m_vertexArray);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, m_samples > 0 ? m_multisampleFramebuffer : m_framebuffer);
    gl.glViewport(0, 0, plan.size.width(), plan.size.height());
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_CULL_FACE);
    gl.glDisable(GL_SCISSOR_TEST);
    if (!m_context->isOpenGLES())
        gl.glEnable(GL_PROGRAM_POINT_SIZE);
    gl.glClearDepthf(1.0f);
    gl.glClear(GL_DEPTH_BUFFER_BIT);

    gl.glDisable(GL_DEPTH_TEST);
    DrawBackground();
    gl.glEnable(GL_DEPTH_TEST);
    gl.glDepthFunc(GL_LEQUAL);
    m_programs->UseLines(gl, plan.viewProjection, c_nodeSize);
    gl.glLineWidth(1.0f);
    gl.glDrawArrays(GL_LINES, 0, m_buffers->Stream(gl, plan.modelLines));
    DrawMembers(plan, scene);
    DrawSolids(plan, scene);
    if (plan.nodes) {
        m_programs->UseLines(gl, plan.viewProjection, c_nodeSize);
        m_buffers->BindNodes(gl);
        gl.glDrawArrays(GL_POINTS, 0, GLsizei(m_buffers->NodeCount()));
    }

    // The selection and the object under the pointer show through everything.
    gl.glDisable(GL_DEPTH_TEST);
    m_programs->UseLines(gl, plan.viewProjection, c_emphasisNodeSize);
    gl.glLineWidth(c_emphasisLineWidth);
    gl.glDrawArrays(GL_LINES, 0, m_buffers->Stream(gl, plan.emphasisLines));
    gl.glDrawArrays(GL_POINTS, 0, m_buffers->Stream(gl, plan.emphasisPoints));
    DrawOverlay(plan);

    if (m_samples > 0) {
        gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, m_multisampleFramebuffer);
        gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_framebuffer);
        gl.glBlitFramebuffer(0, 0, plan.size.width(), plan.size.height(), 0, 0, plan.size.width(),
                             plan.size.height(), GL_COLOR_BUFFER_BIT, GL_NEAREST);
    }
    gl.glBindVertexArray(0);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, 0);
    // The window's context samples the texture next: it must be complete by then.
    gl.glFinish();
    RestoreCurrent();
    view.SetNativeTexture(m_colorTexture);
}

bool OpenGLRenderer::MakeCurrent()
{
    m_previousContext = QOpenGLContext::currentContext();
    m_previousSurface = m_previousContext ? m_previousContext->surface() : nullptr;
    // The surface the caller works on now: the window while it renders, an offscreen surface
    // once the window is gone.
    QSurface* surface = m_previousSurface ? m_previousSurface : m_surface;
    if (surface && m_context->makeCurrent(surface))
        return true;
    RestoreCurrent();
    return false;
}

void OpenGLRenderer::RestoreCurrent()
{
    if (m_previousContext)
        m_previousContext->makeCurrent(m_previousSurface);
    else if (m_context)
        m_context->doneCurrent();
    m_previousContext = nullptr;
    m_previousSurface = nullptr;
}

void OpenGLRenderer::ResizeFramebuffer(const QSize& size)
{
    if (size == m_size && m_framebuffer)
        return;
    DeleteFramebuffer();
    QOpenGLExtraFunctions& gl = *m_gl;
    m_size = size;
    gl.glGenTextures(1, &m_colorTexture);
    gl.glBindTexture(GL_TEXTURE_2D, m_colorTexture);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, size.width(), size.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                    nullptr);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    gl.glBindTexture(GL_TEXTURE_2D, 0);
    gl.glGenRenderbuffers(1, &m_depthBuffer);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, m_depthBuffer);
    gl.glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, size.width(), size.height());
    gl.glGenFramebuffers(1, &m_framebuffer);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    gl.glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_colorTexture, 0);
    gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, m_depthBuffer);
    if (gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE)
        qCWarning(GraphicLogging()) << "The OpenGL renderer's framebuffer of" << size << "is not complete";
    if (m_samples > 0) {
        gl.glGenRenderbuffers(1, &m_multisampleColor);
        gl.glBindRenderbuffer(GL_RENDERBUFFER, m_multisampleColor);
        gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, m_samples, GL_RGBA8, size.width(),
                                            size.height());
        gl.glGenRenderbuffers(1, &m_multisampleDepth);
        gl.glBindRenderbuffer(GL_RENDERBUFFER, m_multisampleDepth);
        gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, m_samples, GL_DEPTH_COMPONENT24, size.width(),
                                            size.height());
        gl.glGenFramebuffers(1, &m_multisampleFramebuffer);
        gl.glBindFramebuffer(GL_FRAMEBUFFER, m_multisampleFramebuffer);
        gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER,
                                     m_multisampleColor);
        gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER,
                                     m_multisampleDepth);
        if (gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE)
            qCWarning(GraphicLogging()) << "The OpenGL renderer's multisampled framebuffer is not complete";
    }
    gl.glBindRenderbuffer(GL_RENDERBUFFER, 0);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

void OpenGLRenderer::DeleteFramebuffer()
{
    if (!m_framebuffer)
        return;
    QOpenGLExtraFunctions& gl = *m_gl;
    const GLuint framebuffers[2] = { m_framebuffer, m_multisampleFramebuffer };
    const GLuint renderbuffers[3] = { m_depthBuffer, m_multisampleColor, m_multisampleDepth };
    gl.glDeleteFramebuffers(2, framebuffers);
    gl.glDeleteRenderbuffers(3, renderbuffers);
    gl.glDeleteTextures(1, &m_colorTexture);
    m_framebuffer = m_multisampleFramebuffer = 0;
    m_depthBuffer = m_multisampleColor = m_multisampleDepth = 0;
    m_colorTexture = 0;
    m_size = QSize();
}

void OpenGLRenderer::DrawBackground()
{
    m_programs->UseLines(*m_gl, QMatrix4x4(), 1.0f);
    m_gl->glDrawArrays(GL_TRIANGLES, 0, m_buffers->Stream(*m_gl, BackgroundQuad()));
}

void OpenGLRenderer::DrawMembers(const FramePlan& plan, const StructureScene& scene)
{
    m_programs->UseLines(*m_gl, plan.viewProjection, c_nodeSize);
    m_buffers->BindMemberLines(*m_gl);
    // Cells in sight that follow each other in the scene are one run of vertices: one draw.
    const auto& cells = scene.Cells();
    std::size_t i = 0;
    while (i < plan.lineCells.size()) {
        const std::uint32_t first = cells[plan.lineCells[i]].first;
        std::uint32_t end = first + cells[plan.lineCells[i]].count;
        ++i;
        while (i < plan.lineCells.size() && cells[plan.lineCells[i]].first == end) {
            end += cells[plan.lineCells[i]].count;
            ++i;
        }
        m_gl->glDrawArrays(GL_LINES, GLint(first * 2), GLsizei((end - first) * 2));
    }
}

void OpenGLRenderer::DrawSolids(const FramePlan& plan, const StructureScene& scene)
{
    if (plan.solidCells.empty())
        return;
    QOpenGLExtraFunctions& gl = *m_gl;
    m_programs->UseSolids(gl, plan.viewProjection, plan.light);
    for (const std::uint32_t index : plan.solidCells) {
        const auto& cell = scene.Cells()[index];
        for (std::uint32_t r = cell.firstRun; r < cell.firstRun + cell.runCount; ++r) {
            const auto& run = scene.Runs()[r];
            m_buffers->BindSolids(gl, run.profile, run.first);
            gl.glDrawArraysInstanced(GL_TRIANGLES, 0, m_buffers->MeshVertexCount(run.profile),
                                     GLsizei(run.count));
        }
    }
    for (const GLuint location :
         { GLPrograms::c_instanceStart, GLPrograms::c_instanceAxisX, GLPrograms::c_instanceAxisY,
           GLPrograms::c_instanceAxisZ, GLPrograms::c_instanceColor }) {
        gl.glVertexAttribDivisor(location, 0);
        gl.glDisableVertexAttribArray(location);
    }
}

void OpenGLRenderer::DrawOverlay(const FramePlan& plan)
{
    QMatrix4x4 pixels;
    pixels.ortho(0.0f, float(plan.size.width()), float(plan.size.height()), 0.0f, -1.0f, 1.0f);
    m_programs->UseLines(*m_gl, pixels, 1.0f);
    // One draw per line width.
    int widest = 1;
    for (const ScreenLine& line : plan.overlay)
        widest = std::max(widest, line.width);
    std::vector<LineVertex> vertices;
    for (int width = 1; width <= widest; ++width) {
        vertices.clear();
        for (const ScreenLine& line : plan.overlay) {
            if (line.width != width)
                continue;
            vertices.push_back({ QVector3D(float(line.a.x()), float(line.a.y()), 0.0f), line.color });
            vertices.push_back({ QVector3D(float(line.b.x()), float(line.b.y()), 0.0f), line.color });
        }
        if (vertices.empty())
            continue;
        m_gl->glLineWidth(float(width));
        m_gl->glDrawArrays(GL_LINES, 0, m_buffers->Stream(*m_gl, vertices));
    }
}

} // namespace Orvo::Graphic
