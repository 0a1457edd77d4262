#pragma once

#include <QString>

namespace Orvo::UI::DataModel {

// Posted on the event bus after a setting took a new value (or went back to its default).
struct SettingChangedEvent
{
    QString key;
};

} // namespace Orvo::UI::DataModel
