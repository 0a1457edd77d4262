#pragma once

#include <QString>
#include <string>

namespace Orvo::UI::UIComponents {

inline constexpr const wchar_t* c_stringTable = L"QtComponentsStrings";

// The text of identifier id in the components' string table, from the host's string loader.
QString GetText(const QString& id);
std::wstring GetWText(const std::wstring& id);

} // namespace Orvo::UI::UIComponents
