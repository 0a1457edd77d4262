#include "MarkingMenuConfigXmlHandler.h"

#include "MarkingMenuConfig.h"
#include "framework/XMLHandler.h"
#include "qtextensions/File.h"

#include <stdexcept>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::XMLHandler;

namespace {

constexpr const char* c_invalidXml = "Input XML for MarkingMenu is not valid.";

using Handler = MarkingMenuConfigXmlHandler;

// The section an id names, or discard for an id the format does not know: its element is
// still read (its attributes are still required) and then forgotten.
MarkingMenuSectionConfig& TargetSection(MarkingMenuConfig& config, const std::wstring& id,
                                        MarkingMenuSectionConfig& discard)
{
    if (id == Handler::c_top)
        return *config.topSection();
    if (id == Handler::c_right)
        return *config.rightSection();
    if (id == Handler::c_bottom)
        return *config.bottomSection();
    if (id == Handler::c_left)
        return *config.leftSection();
    return discard;
}

using SectionWriter = void (*)(pugi::xml_node&, const MarkingMenuSectionConfig&, const std::wstring&);

// A document with the four sections in the format's order, each written by writeSection.
std::wstring WriteSections(const MarkingMenuConfig& config, SectionWriter writeSection)
{
    XMLHandler document;
    pugi::xml_node root = document.AddRootNode(Handler::c_marking_menu, true);
    writeSection(root, *config.topSection(), Handler::c_top);
    writeSection(root, *config.rightSection(), Handler::c_right);
    writeSection(root, *config.bottomSection(), Handler::c_bottom);
    writeSection(root, *config.leftSection(), Handler::c_left);
    std::wstring text;
    document.SaveToString(text);
    return text;
}

// Calls readSection(element, section) for every section element of the marking_menu root, in
// document order, with the section of config its id names.
template<class SectionReader>
void ReadSections(const pugi::xml_node& root, MarkingMenuConfig& config, SectionReader readSection)
{
    if (!XMLHandler::HasName(root, Handler::c_marking_menu))
        throw std::invalid_argument(c_invalidXml);
    for (const pugi::xml_node& element : root.children()) {
        if (!XMLHandler::HasName(element, Handler::c_section))
            continue;
        MarkingMenuSectionConfig discard;
        readSection(element,
                    TargetSection(config, XMLHandler::ReadAttribReq(element, Handler::c_id), discard));
    }
}

} // namespace

std::wstring MarkingMenuConfigXmlHandler::ToXml(const MarkingMenuConfig& config)
{
    return WriteSections(config, &AddFirstLevelSection);
}

std::unique_ptr<MarkingMenuConfig> MarkingMenuConfigXmlHandler::FromXml(const std::wstring& xml)
{
    XMLHandler document;
    document.LoadString(xml); // a failed parse leaves no root, which the root check reports
    return FromXml(document);
}

std::unique_ptr<MarkingMenuConfig> MarkingMenuConfigXmlHandler::FromXml(const XMLHandler& document)
{
    auto config = std::make_unique<MarkingMenuConfig>();
    ReadSections(document.RootNode(), *config,
                 [](const pugi::xml_node& element, MarkingMenuSectionConfig& section) {
                     section.m_label = QString::fromStdWString(XMLHandler::ReadAttribReq(element, c_label));
                     section.m_lcid = QString::fromStdWString(XMLHandler::ReadAttribReq(element, c_lcid));
                     // An absolute icon path is kept; an empty one stays empty ("no icon").
                     section.m_icon = QtExtensions::File::createQmlFilePathFromApplicationPath(
                         XMLHandler::ReadAttribReq(element, c_icon));
                 });
    return config;
}

std::wstring MarkingMenuConfigXmlHandler::UserConfigToXml(const MarkingMenuConfig& config)
{
    return WriteSections(config, &AddFirstLevelUserConfig);
}

void MarkingMenuConfigXmlHandler::FromUserConfigXml(MarkingMenuConfig& config, const std::wstring& xml)
{
    XMLHandler document;
    document.LoadString(xml);
    ReadSections(
        document.RootNode(), config, [](const pugi::xml_node& element, MarkingMenuSectionConfig& section) {
            section.m_sectionVisible = XMLHandler::ReadAttribBoolReq(element, c_visible);
            for (QString& uuid : section.m_commandUuids)
                uuid.clear();
            for (const pugi::xml_node& tool : element.children()) {
                if (!XMLHandler::HasName(tool, c_tool))
                    continue;
                const qint64 index = static_cast<qint64>(XMLHandler::ReadAttribIntReq(tool, c_slice)) - 1;
                const std::wstring uuid = XMLHandler::ReadAttribReq(tool, c_uuid);
                if (index < 0 || index >= section.m_commandUuids.size())
                    continue; // a slice the menu does not have
                section.m_commandUuids[static_cast<qsizetype>(index)] = QString::fromStdWString(uuid);
            }
        });
}

void MarkingMenuConfigXmlHandler::AddFirstLevelSection(pugi::xml_node& root,
                                                       const MarkingMenuSectionConfig& section,
                                                       const std::wstring& id)
{
    pugi::xml_node element = XMLHandler::AppendChild(root, c_section);
    XMLHandler::AppendAttrib(element, c_id, id);
    XMLHandler::AppendAttrib(element, c_label, section.label().toStdWString());
    XMLHandler::AppendAttrib(element, c_lcid, section.lcid().toStdWString());
    XMLHandler::AppendAttrib(element, c_icon, QtExtensions::File::getRelativePathFromQmlPath(section.icon()));
}

void MarkingMenuConfigXmlHandler::AddFirstLevelUserConfig(pugi::xml_node& root,
                                                          const MarkingMenuSectionConfig& section,
                                                          const std::wstring& id)
{
    pugi::xml_node element = XMLHandler::AppendChild(root, c_section);
    XMLHandler::AppendAttrib(element, c_id, id);
    XMLHandler::AppendAttrib(element, c_visible, section.sectionVisible() ? c_trueValue : c_false);
    int slice = 0;
    for (const QString& uuid : section.commandUuids()) {
        ++slice;
        if (uuid.isEmpty())
            continue;
        pugi::xml_node tool = XMLHandler::AppendChild(element, c_tool);
        XMLHandler::AppendAttrib(tool, c_uuid, uuid.toStdWString());
        XMLHandler::AppendAttrib(tool, c_slice, std::to_wstring(slice));
    }
}

} // namespace Orvo::UI::UIComponents
