#include "MenuDefinition.h"

#include "MenuSystemLogging.h"
#include "framework/XMLHandler.h"

#include <stdexcept>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::XMLHandler;

namespace {

QString Attribute(const pugi::xml_node& node, const wchar_t* name)
{
    return XMLHandler::HasAttrib(node, name) ? QString::fromStdWString(XMLHandler::ReadAttribReq(node, name))
                                             : QString();
}

std::vector<MenuEntry> ReadItems(const pugi::xml_node& parent)
{
    std::vector<MenuEntry> items;
    for (pugi::xml_node node = parent.first_child(); node; node = node.next_sibling()) {
        if (node.type() != pugi::node_element)
            continue;
        MenuEntry entry;
        if (XMLHandler::HasName(node, L"command")) {
            entry.type = MenuEntry::Type::Command;
            entry.commandUuid = QString::fromStdWString(XMLHandler::ReadAttribReq(node, L"uuid"));
            for (pugi::xml_node sub = node.first_child(); sub; sub = sub.next_sibling()) {
                if (sub.type() == pugi::node_element && XMLHandler::HasName(sub, L"subcommand"))
                    entry.subcommands.push_back(
                        { QString::fromStdWString(XMLHandler::ReadAttribReq(sub, L"name")),
                          Attribute(sub, L"icon"), Attribute(sub, L"parameters") });
            }
        } else if (XMLHandler::HasName(node, L"separator")) {
            entry.type = MenuEntry::Type::Separator;
        } else if (XMLHandler::HasName(node, L"recentfiles")) {
            entry.type = MenuEntry::Type::RecentFiles;
            entry.commandUuid = QString::fromStdWString(XMLHandler::ReadAttribReq(node, L"command"));
        } else if (XMLHandler::HasName(node, L"menu") || XMLHandler::HasName(node, L"contextmenu")) {
            entry.type = MenuEntry::Type::Submenu;
            entry.context = XMLHandler::HasName(node, L"contextmenu");
            entry.id = QString::fromStdWString(XMLHandler::ReadAttribReq(node, L"id"));
            entry.nameId = QString::fromStdWString(XMLHandler::ReadAttribReq(node, L"name"));
            entry.children = ReadItems(node);
        } else {
            qCWarning(lcMenuSystem) << "Menu definition: unknown element skipped:"
                                    << QString::fromStdWString(XMLHandler::NodeName(node));
            continue;
        }
        items.push_back(std::move(entry));
    }
    return items;
}

const std::vector<MenuEntry>* FindIn(const std::vector<MenuEntry>& items, const QString& menuId)
{
    for (const MenuEntry& entry : items) {
        if (entry.type != MenuEntry::Type::Submenu)
            continue;
        if (entry.id == menuId)
            return &entry.children;
        if (const auto* found = FindIn(entry.children, menuId))
            return found;
    }
    return nullptr;
}

const MenuEntry* FindCommandIn(const std::vector<MenuEntry>& items, const QString& uuid)
{
    for (const MenuEntry& entry : items) {
        if (entry.type == MenuEntry::Type::Command && entry.commandUuid == uuid)
            return &entry;
        if (const MenuEntry* found = FindCommandIn(entry.children, uuid))
            return found;
    }
    return nullptr;
}

} // namespace

void MenuDefinition::Load(const std::filesystem::path& file)
{
    XMLHandler document;
    if (!document.LoadFile(file))
        throw std::invalid_argument("Failed to load the menu definition.");
    Read(document);
}

void MenuDefinition::LoadString(const std::wstring& xml)
{
    XMLHandler document;
    if (!document.LoadString(xml))
        throw std::invalid_argument("Failed to read the menu definition.");
    Read(document);
}

void MenuDefinition::Read(const XMLHandler& document)
{
    const pugi::xml_node root = document.RootNode();
    if (!XMLHandler::HasName(root, L"menus"))
        throw std::invalid_argument("The menu definition's root element is not <menus>.");
    m_menus.clear();
    m_contextMenus.clear();
    for (MenuEntry& entry : ReadItems(root))
        (entry.context ? m_contextMenus : m_menus).push_back(std::move(entry));
}

const std::vector<MenuEntry>* MenuDefinition::FindItems(const QString& menuId) const
{
    if (menuId.isEmpty())
        return &m_menus;
    const auto* found = FindIn(m_menus, menuId);
    return found ? found : FindIn(m_contextMenus, menuId);
}

const MenuEntry* MenuDefinition::FindCommand(const QString& commandUuid) const
{
    return FindCommandIn(m_menus, commandUuid);
}

} // namespace Orvo::UI::UIComponents
