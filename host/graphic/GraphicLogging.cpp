#include "GraphicLogging.h"

namespace Orvo::Graphic {

const QLoggingCategory& GraphicLogging()
{
    static const QLoggingCategory category("orvo.graphic", QtInfoMsg);
    return category;
}

} // namespace Orvo::Graphic
