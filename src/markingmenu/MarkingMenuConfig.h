#pragma once

#include "MarkingMenuSectionConfig.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The whole marking menu: its four first-level sections, which live as long as the
// configuration and are never replaced (so their change signals never fire).
class MarkingMenuConfig : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MarkingMenuConfig)
    // Property types are named in full: the QML type description finds classes by their full name.
    Q_PROPERTY(
        Orvo::UI::UIComponents::MarkingMenuSectionConfig* topSection READ topSection NOTIFY topSectionChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::MarkingMenuSectionConfig* rightSection READ rightSection NOTIFY
                   rightSectionChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::MarkingMenuSectionConfig* bottomSection READ bottomSection NOTIFY
                   bottomSectionChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::MarkingMenuSectionConfig* leftSection READ leftSection NOTIFY
                   leftSectionChanged)

public:
    explicit MarkingMenuConfig(QObject* parent = nullptr);

    MarkingMenuSectionConfig* topSection();
    const MarkingMenuSectionConfig* topSection() const;
    MarkingMenuSectionConfig* rightSection();
    const MarkingMenuSectionConfig* rightSection() const;
    MarkingMenuSectionConfig* bottomSection();
    const MarkingMenuSectionConfig* bottomSection() const;
    MarkingMenuSectionConfig* leftSection();
    const MarkingMenuSectionConfig* leftSection() const;

    // True when at least one section is offered (the menu can open at all).
    bool HasVisibleSection() const;

signals:
    void topSectionChanged();
    void rightSectionChanged();
    void bottomSectionChanged();
    void leftSectionChanged();

private:
    MarkingMenuSectionConfig m_topSection;
    MarkingMenuSectionConfig m_rightSection;
    MarkingMenuSectionConfig m_bottomSection;
    MarkingMenuSectionConfig m_leftSection;
};

} // namespace Orvo::UI::UIComponents
