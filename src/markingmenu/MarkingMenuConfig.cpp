#include "MarkingMenuConfig.h"

#include <QQmlEngine>

namespace Orvo::UI::UIComponents {

MarkingMenuConfig::MarkingMenuConfig(QObject* parent)
    : QObject(parent)
{
    // The sections are members: QML must never try to delete them.
    for (auto* section : { &m_topSection, &m_rightSection, &m_bottomSection, &m_leftSection })
        QQmlEngine::setObjectOwnership(section, QQmlEngine::CppOwnership);
}

MarkingMenuSectionConfig* MarkingMenuConfig::topSection()
{
    return &m_topSection;
}

const MarkingMenuSectionConfig* MarkingMenuConfig::topSection() const
{
    return &m_topSection;
}

MarkingMenuSectionConfig* MarkingMenuConfig::rightSection()
{
    return &m_rightSection;
}

const MarkingMenuSectionConfig* MarkingMenuConfig::rightSection() const
{
    return &m_rightSection;
}

MarkingMenuSectionConfig* MarkingMenuConfig::bottomSection()
{
    return &m_bottomSection;
}

const MarkingMenuSectionConfig* MarkingMenuConfig::bottomSection() const
{
    return &m_bottomSection;
}

MarkingMenuSectionConfig* MarkingMenuConfig::leftSection()
{
    return &m_leftSection;
}

const MarkingMenuSectionConfig* MarkingMenuConfig::leftSection() const
{
    return &m_leftSection;
}

bool MarkingMenuConfig::HasVisibleSection() const
{
    return m_topSection.sectionVisible() || m_rightSection.sectionVisible()
        || m_bottomSection.sectionVisible() || m_leftSection.sectionVisible();
}

} // namespace Orvo::UI::UIComponents
