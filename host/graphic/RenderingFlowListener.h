#pragma once

namespace Orvo::Graphic {

// How a view's frames flow between the engine and the window that shows them. The window
// implements the first three; the engine implements the rest, which windows usually keep.
class RenderingFlowListener
{
public:
    virtual ~RenderingFlowListener() = default;

    // The engine wants a frame: the window arranges for Draw to be called soon.
    virtual void RedrawWindowRequest() = 0;
    // Inside Draw, once the frame is in the render view: the window takes it.
    virtual void PresentFrame() = 0;
    // The engine wants a complete frame in msec milliseconds, or none when msec is -1 (any
    // earlier wish is replaced). May be called on any thread.
    virtual void ScheduleRedraw(int msec) = 0;

    // The render target was asked for a frame.
    virtual void OnDrawRequest() = 0;
    // The camera started or stopped moving under the user's hand.
    virtual void TransformingChanged() = 0;
    virtual void OnStartTransforming() = 0;
    virtual void OnStepTransforming() = 0;
    virtual void OnEndTransforming() = 0;
};

} // namespace Orvo::Graphic
