#include "XMLHandler.h"

#include <charconv>
#include <sstream>
#include <string_view>

namespace Orvo::Kernel::Framework {

namespace {

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view whitespace = " \t\r\n";
    const auto first = text.find_first_not_of(whitespace);
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(whitespace);
    return text.substr(first, last - first + 1);
}

pugi::xml_attribute RequiredAttribute(const pugi::xml_node& node, const std::wstring& name)
{
    const pugi::xml_attribute attribute = node.attribute(XMLHandler::ToUtf8(name).c_str());
    if (!attribute) {
        throw XmlAttributeError(XMLHandler::NodeName(node), name,
                                "Required attribute \"" + XMLHandler::ToUtf8(name)
                                    + "\" is missing on element <" + node.name() + ">.");
    }
    return attribute;
}

[[noreturn]] void ThrowMalformed(const pugi::xml_node& node, const std::wstring& name,
                                 const pugi::xml_attribute& attribute, const char* expected)
{
    throw XmlAttributeError(XMLHandler::NodeName(node), name,
                            "Attribute \"" + XMLHandler::ToUtf8(name) + "\" of element <" + node.name()
                                + "> is not " + expected + ": \"" + attribute.value() + "\".");
}

} // namespace

XmlAttributeError::XmlAttributeError(const std::wstring& element, const std::wstring& attribute,
                                     const std::string& message)
    : std::runtime_error(message)
    , m_element(element)
    , m_attribute(attribute)
{ }

XMLHandler::XMLHandler() = default;
XMLHandler::~XMLHandler() = default;

pugi::xml_parse_result XMLHandler::LoadString(const std::wstring& text)
{
    const std::string utf8 = ToUtf8(text);
    return KeepOnlyComplete(
        m_document.load_buffer(utf8.data(), utf8.size(), pugi::parse_default, pugi::encoding_utf8));
}

pugi::xml_parse_result XMLHandler::LoadFile(const std::filesystem::path& path)
{
    return KeepOnlyComplete(m_document.load_file(path.c_str()));
}

pugi::xml_parse_result XMLHandler::KeepOnlyComplete(pugi::xml_parse_result result)
{
    // pugixml keeps what it read before an error; a truncated file must not pass for a whole one.
    if (!result)
        m_document.reset();
    return result;
}

pugi::xml_node XMLHandler::RootNode() const
{
    return m_document.document_element();
}

pugi::xml_node XMLHandler::AddRootNode(const std::wstring& name, bool withDeclaration)
{
    m_document.reset();
    if (withDeclaration) {
        pugi::xml_node declaration = m_document.append_child(pugi::node_declaration);
        declaration.append_attribute("version") = "1.0";
        declaration.append_attribute("encoding") = "UTF-8";
    }
    return m_document.append_child(ToUtf8(name).c_str());
}

void XMLHandler::SaveToString(std::wstring& text) const
{
    std::ostringstream stream;
    // A declaration is written only when the document holds one (see AddRootNode).
    m_document.save(stream, "  ", pugi::format_indent | pugi::format_no_declaration, pugi::encoding_utf8);
    text = FromUtf8(stream.str().c_str());
}

std::wstring XMLHandler::ReadAttribReq(const pugi::xml_node& node, const std::wstring& name)
{
    return FromUtf8(RequiredAttribute(node, name).value());
}

bool XMLHandler::ReadAttribBoolReq(const pugi::xml_node& node, const std::wstring& name)
{
    const pugi::xml_attribute attribute = RequiredAttribute(node, name);
    const std::string_view value = Trimmed(attribute.value());
    if (value == "true" || value == "1")
        return true;
    if (value == "false" || value == "0")
        return false;
    ThrowMalformed(node, name, attribute, "a boolean");
}

int XMLHandler::ReadAttribIntReq(const pugi::xml_node& node, const std::wstring& name)
{
    const pugi::xml_attribute attribute = RequiredAttribute(node, name);
    std::string_view value = Trimmed(attribute.value());
    // from_chars knows no plus sign; a second sign after it stays an error.
    if (value.size() > 1 && value.front() == '+' && value[1] != '-')
        value.remove_prefix(1);
    int result = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), result);
    if (value.empty() || error != std::errc() || end != value.data() + value.size())
        ThrowMalformed(node, name, attribute, "an integer");
    return result;
}

bool XMLHandler::HasAttrib(const pugi::xml_node& node, const std::wstring& name)
{
    return static_cast<bool>(node.attribute(ToUtf8(name).c_str()));
}

bool XMLHandler::HasName(const pugi::xml_node& node, const std::wstring& name)
{
    return node.type() == pugi::node_element && ToUtf8(name) == node.name();
}

std::wstring XMLHandler::NodeName(const pugi::xml_node& node)
{
    return FromUtf8(node.name());
}

pugi::xml_node XMLHandler::AppendChild(pugi::xml_node& parent, const std::wstring& name)
{
    return parent.append_child(ToUtf8(name).c_str());
}

void XMLHandler::AppendAttrib(pugi::xml_node& node, const std::wstring& name, const std::wstring& value)
{
    node.append_attribute(ToUtf8(name).c_str()) = ToUtf8(value).c_str();
}

std::string XMLHandler::ToUtf8(const std::wstring& text)
{
    return pugi::as_utf8(text);
}

std::wstring XMLHandler::FromUtf8(const char* text)
{
    return pugi::as_wide(text);
}

} // namespace Orvo::Kernel::Framework
