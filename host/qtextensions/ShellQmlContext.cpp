#include "ShellQmlContext.h"

namespace Orvo::UI::QtExtensions {

void ShellQmlContext::SetContext(QQmlContext* context)
{
    m_context = context;
}

QQmlContext* ShellQmlContext::GetContext() const
{
    return m_context.data();
}

} // namespace Orvo::UI::QtExtensions
