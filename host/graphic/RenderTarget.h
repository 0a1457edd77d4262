#pragma once

#include "HostKitExport.h"

namespace Orvo::Graphic {

class RenderingFlowListener;

// The engine's side of an initialised view: its id among the views of the process, and the
// way to ask it for frames.
class HOSTKIT_EXPORT RenderTarget
{
public:
    RenderTarget(int id, RenderingFlowListener& listener);

    int GetId() const { return m_id; }
    // Asks for a frame through the listener (OnDrawRequest).
    void DrawRequest();
    // The next frame has every detail even while the camera moves; Draw clears it.
    void SetForceSingleCompleteFrame(bool force) { m_forceSingleCompleteFrame = force; }
    bool IsForceSingleCompleteFrame() const { return m_forceSingleCompleteFrame; }

private:
    int m_id;
    RenderingFlowListener& m_listener;
    bool m_forceSingleCompleteFrame = false;
};

} // namespace Orvo::Graphic
