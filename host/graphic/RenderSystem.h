#pragma once

#include "HostKitExport.h"

#include <memory>

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::Graphic {

// Which renderer draws the views: the user's choice (the setting Graphics/RendererType, by
// default OpenGL), where it can work. An OpenGL renderer shares the context of the thread that
// asks, so where no OpenGL context is current the software renderer takes its place.
class HOSTKIT_EXPORT RenderSystem
{
public:
    explicit RenderSystem(std::shared_ptr<const UI::DataModel::Settings> settings);

    // A RendererType value.
    int GetRendererType() const;

private:
    std::shared_ptr<const UI::DataModel::Settings> m_settings;
};

} // namespace Orvo::Graphic
