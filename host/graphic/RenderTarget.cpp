#include "RenderTarget.h"

#include "RenderingFlowListener.h"

namespace Orvo::Graphic {

RenderTarget::RenderTarget(int id, RenderingFlowListener& listener)
    : m_id(id)
    , m_listener(listener)
{ }

void RenderTarget::DrawRequest()
{
    m_listener.OnDrawRequest();
}

} // namespace Orvo::Graphic
