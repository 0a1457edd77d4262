#include "TooltipData.h"

namespace Orvo::UI::UIComponents {

TooltipData::TooltipData(QObject* parent)
    : QObject(parent)
{ }

void TooltipData::setTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    emit changed();
}

void TooltipData::setDescription(const QString& description)
{
    if (m_description == description)
        return;
    m_description = description;
    emit changed();
}

void TooltipData::setShortcut(const QString& shortcut)
{
    if (m_shortcut == shortcut)
        return;
    m_shortcut = shortcut;
    emit changed();
}

void TooltipData::setStatus(const QString& status)
{
    if (m_status == status)
        return;
    m_status = status;
    emit changed();
}

} // namespace Orvo::UI::UIComponents
