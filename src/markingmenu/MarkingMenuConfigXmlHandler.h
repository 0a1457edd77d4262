#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

namespace Orvo::Kernel::Framework {
class XMLHandler;
}

namespace Orvo::UI::UIComponents {

class MarkingMenuConfig;
class MarkingMenuSectionConfig;

// Converts a marking menu configuration to and from its XML. The full variant carries what the
// application ships (labels, text keys, icons), the user variant what the user chooses
// (visibility, the command of each slice); neither carries the other's data.
class MarkingMenuConfigXmlHandler
{
public:
    MarkingMenuConfigXmlHandler& operator=(const MarkingMenuConfigXmlHandler&) = default;
    MarkingMenuConfigXmlHandler& operator=(MarkingMenuConfigXmlHandler&&) = default;

    static std::wstring ToXml(const MarkingMenuConfig& config);
    // Both throw std::invalid_argument for a document without a marking_menu root (text that
    // does not parse included) and the XML handler's error for a missing or malformed
    // required attribute.
    static std::unique_ptr<MarkingMenuConfig> FromXml(const std::wstring& xml);
    static std::unique_ptr<MarkingMenuConfig> FromXml(const Kernel::Framework::XMLHandler& document);

    static std::wstring UserConfigToXml(const MarkingMenuConfig& config);
    // Applied in place, section by section: an error part-way leaves the earlier sections changed.
    static void FromUserConfigXml(MarkingMenuConfig& config, const std::wstring& xml);

    static inline const std::wstring c_marking_menu = L"marking_menu";
    static inline const std::wstring c_section = L"section";
    static inline const std::wstring c_tool = L"tool";
    static inline const std::wstring c_id = L"id";
    static inline const std::wstring c_top = L"TOP";
    static inline const std::wstring c_right = L"RIGHT";
    static inline const std::wstring c_bottom = L"BOTTOM";
    static inline const std::wstring c_left = L"LEFT";
    static inline const std::wstring c_label = L"label";
    static inline const std::wstring c_lcid = L"lcid";
    static inline const std::wstring c_icon = L"icon";
    static inline const std::wstring c_visible = L"visible";
    static inline const std::wstring c_uuid = L"uuid";
    static inline const std::wstring c_slice = L"slice";
    static inline const std::wstring c_trueValue = L"true";
    static inline const std::wstring c_false = L"false";

private:
    static void AddFirstLevelSection(pugi::xml_node& root, const MarkingMenuSectionConfig& section,
                                     const std::wstring& id);
    static void AddFirstLevelUserConfig(pugi::xml_node& root, const MarkingMenuSectionConfig& section,
                                        const std::wstring& id);
};

} // namespace Orvo::UI::UIComponents
