#include "MarkingMenuSectionConfig.h"

namespace Orvo::UI::UIComponents {

MarkingMenuSectionConfig::MarkingMenuSectionConfig(QObject* parent)
    : QObject(parent)
    , m_commandUuids(c_sliceCount)
{ }

MarkingMenuSectionConfig::MarkingMenuSectionConfig(bool sectionVisible, QString icon, QString label,
                                                   QString lcid, QList<QString> commandUuids)
    : m_sectionVisible(sectionVisible)
    , m_icon(std::move(icon))
    , m_label(std::move(label))
    , m_lcid(std::move(lcid))
    , m_commandUuids(std::move(commandUuids))
{ }

bool MarkingMenuSectionConfig::sectionVisible() const
{
    return m_sectionVisible;
}

QString MarkingMenuSectionConfig::icon() const
{
    return m_icon;
}

QString MarkingMenuSectionConfig::label() const
{
    return m_label;
}

QString MarkingMenuSectionConfig::lcid() const
{
    return m_lcid;
}

const QList<QString>& MarkingMenuSectionConfig::commandUuids() const
{
    return m_commandUuids;
}

} // namespace Orvo::UI::UIComponents
