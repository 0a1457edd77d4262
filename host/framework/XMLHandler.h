#pragma once

#include "HostKitExport.h"

#include <filesystem>
#include <pugixml.hpp>
#include <stdexcept>
#include <string>

namespace Orvo::Kernel::Framework {

// A required attribute that is missing or cannot be read as the type asked for. The message
// names the element and the attribute, so a broken configuration file can be found and fixed.
class HOSTKIT_EXPORT XmlAttributeError : public std::runtime_error
{
public:
    XmlAttributeError(const std::wstring& element, const std::wstring& attribute, const std::string& message);

    const std::wstring& Element() const { return m_element; }
    const std::wstring& Attribute() const { return m_attribute; }

private:
    std::wstring m_element;
    std::wstring m_attribute;
};

// The host's XML document. Callers speak wide strings; pugixml holds UTF-8 (the system build is
// not in wide-character mode), so every name and value is converted here, at the boundary.
class HOSTKIT_EXPORT XMLHandler
{
public:
    XMLHandler();
    ~XMLHandler();
    XMLHandler(const XMLHandler&) = delete;
    XMLHandler& operator=(const XMLHandler&) = delete;

    // Both replace the document. A result that converts to false leaves a document without a
    // root element.
    pugi::xml_parse_result LoadString(const std::wstring& text);
    pugi::xml_parse_result LoadFile(const std::filesystem::path& path);

    // The document element; an empty node when there is none.
    pugi::xml_node RootNode() const;
    // Starts a new document with a root element named name, preceded by an XML declaration
    // when withDeclaration is set.
    pugi::xml_node AddRootNode(const std::wstring& name, bool withDeclaration);
    // Indented with two spaces per level.
    void SaveToString(std::wstring& text) const;

    // Readers of required attributes: each throws XmlAttributeError when the attribute is
    // missing or malformed. Booleans are "true", "false", "1" or "0"; integers are decimal,
    // optionally signed, and must fit an int. Surrounding white space is tolerated.
    static std::wstring ReadAttribReq(const pugi::xml_node& node, const std::wstring& name);
    static bool ReadAttribBoolReq(const pugi::xml_node& node, const std::wstring& name);
    static int ReadAttribIntReq(const pugi::xml_node& node, const std::wstring& name);

    static bool HasAttrib(const pugi::xml_node& node, const std::wstring& name);
    static bool HasName(const pugi::xml_node& node, const std::wstring& name);
    static std::wstring NodeName(const pugi::xml_node& node);
    static pugi::xml_node AppendChild(pugi::xml_node& parent, const std::wstring& name);
    static void AppendAttrib(pugi::xml_node& node, const std::wstring& name, const std::wstring& value);

    static std::string ToUtf8(const std::wstring& text);
    static std::wstring FromUtf8(const char* text);

    static constexpr const wchar_t* c_trueValue = L"true";
    static constexpr const wchar_t* c_falseValue = L"false";

private:
    pugi::xml_parse_result KeepOnlyComplete(pugi::xml_parse_result result);

    pugi::xml_document m_document;
};

} // namespace Orvo::Kernel::Framework
