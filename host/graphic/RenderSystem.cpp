#include "RenderSystem.h"

#include "GraphicTypes.h"
#include "datamodel/Settings.h"

#include <QOpenGLContext>

namespace Orvo::Graphic {

RenderSystem::RenderSystem(std::shared_ptr<const UI::DataModel::Settings> settings)
    : m_settings(std::move(settings))
{ }

int RenderSystem::GetRendererType() const
{
    const int chosen
        = m_settings ? m_settings->GetRendererType(int(RendererType::OpenGL)) : int(RendererType::OpenGL);
    if (IsOpenGLRenderer(chosen) && !QOpenGLContext::currentContext())
        return chosen == int(RendererType::OpenGLMultisample) ? int(RendererType::SoftwareSmooth)
                                                              : int(RendererType::Software);
    return chosen;
}

} // namespace Orvo::Graphic
