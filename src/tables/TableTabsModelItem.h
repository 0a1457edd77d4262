#pragma once

#include <QString>

namespace Orvo::UI::UIComponents {

// One tab of a table panel: which host table it shows and how it looks. An alerted tab holds
// values the host marks as errors.
struct TableTabsModelItem
{
    QString id;
    QString icon; // a QML file path
    QString label;
    bool alerted = false;
};

} // namespace Orvo::UI::UIComponents
