#pragma once

#include "HostKitExport.h"

#include <QLoggingCategory>

namespace Orvo::Graphic {

// The graphics engine's messages ("orvo.graphic").
HOSTKIT_EXPORT const QLoggingCategory& GraphicLogging();

} // namespace Orvo::Graphic
