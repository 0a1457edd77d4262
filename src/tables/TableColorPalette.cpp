#include "TableColorPalette.h"

#include <array>
#include <utility>

namespace Orvo::UI::UIComponents {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 18> c_palette { {
    { "UI_COLOR_ORVO_BURGUNDY", "#b72534" },
    { "UI_COLOR_ORVO_RED", "#fc4d4d" },
    { "UI_COLOR_ORVO_ORANGE", "#fcab4d" },
    { "UI_COLOR_ORVO_YELLOW", "#fcd532" },
    { "UI_COLOR_ORVO_GREEN", "#55c388" },
    { "UI_COLOR_ORVO_SEAFOAM", "#29d1c8" },
    { "UI_COLOR_ORVO_DARK_BLUE", "#20206e" },
    { "UI_COLOR_ORVO_GREY", "#8c857e" },
    { "UI_COLOR_WHITE", "#ffffff" },
    { "UI_COLOR_BLACK", "#000000" },
    { "UI_COLOR_BROWN", "#75140c" },
    { "UI_COLOR_YELLOW", "#fffd54" },
    { "UI_COLOR_DARK_GREEN", "#377d22" },
    { "UI_COLOR_GREEN", "#75f94c" },
    { "UI_COLOR_BLUE", "#0021f5" },
    { "UI_COLOR_AQUAMARINE", "#73fbfd" },
    { "UI_COLOR_PURPLE", "#751a7c" },
    { "UI_COLOR_PINK", "#ea3ef7" },
} };

bool IsInPalette(int index)
{
    return index >= 0 && index < static_cast<int>(c_palette.size());
}

} // namespace

int TableColorPalette::GetCount()
{
    return static_cast<int>(c_palette.size());
}

QString TableColorPalette::GetKey(int index)
{
    return IsInPalette(index) ? QString::fromLatin1(c_palette[static_cast<std::size_t>(index)].first)
                              : QString();
}

QString TableColorPalette::GetHex(int index)
{
    return IsInPalette(index) ? QString::fromLatin1(c_palette[static_cast<std::size_t>(index)].second)
                              : QString();
}

int TableColorPalette::FindHex(const QString& hex)
{
    for (int i = 0; i < GetCount(); ++i) {
        if (hex.compare(QLatin1String(c_palette[static_cast<std::size_t>(i)].second), Qt::CaseInsensitive)
            == 0)
            return i;
    }
    return -1;
}

const QVariantList& TableColorPalette::GetHexValues()
{
    static const QVariantList values = [] {
        QVariantList list;
        for (int i = 0; i < GetCount(); ++i)
            list.append(GetHex(i));
        return list;
    }();
    return values;
}

} // namespace Orvo::UI::UIComponents
