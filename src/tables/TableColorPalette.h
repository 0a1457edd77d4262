#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace Orvo::UI::UIComponents {

// The fixed colours a colour cell can take: string-table keys and their hex values, in palette order.
class TableColorPalette
{
public:
    static int GetCount();
    static QString GetKey(int index); // empty outside the palette
    static QString GetHex(int index); // empty outside the palette
    static int FindHex(const QString& hex); // -1 when the colour is not in the palette
    static const QVariantList& GetHexValues();
};

} // namespace Orvo::UI::UIComponents
