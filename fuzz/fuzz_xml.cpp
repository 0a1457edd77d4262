// Both marking menu readers (the shipped configuration and the user's choices) and the host's
// XML document underneath them. The only exceptions a reader may let out are the documented
// ones; anything else escaping is a finding (libFuzzer reports it as a crash).
#include "FuzzSupport.h"
#include "framework/XMLHandler.h"
#include "markingmenu/MarkingMenuConfig.h"
#include "markingmenu/MarkingMenuConfigXmlHandler.h"

#include <stdexcept>

using namespace Orvo::UI::UIComponents;
using Orvo::Kernel::Framework::XmlAttributeError;
using Orvo::Kernel::Framework::XMLHandler;

namespace {

void ReadEveryAttribute(const pugi::xml_node& node)
{
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        const std::wstring name = XMLHandler::FromUtf8(attribute.name());
        FUZZ_CHECK(XMLHandler::HasAttrib(node, name));
        try {
            // pugixml keeps repeated attributes; a reader gets the first of the name.
            FUZZ_CHECK(XMLHandler::ReadAttribReq(node, name)
                       == XMLHandler::FromUtf8(node.attribute(attribute.name()).value()));
            XMLHandler::ReadAttribBoolReq(node, name);
        } catch (const XmlAttributeError&) { }
        try {
            XMLHandler::ReadAttribIntReq(node, name);
        } catch (const XmlAttributeError&) { }
    }
    for (const pugi::xml_node& child : node.children())
        ReadEveryAttribute(child);
}

void HostDocument(const std::wstring& text)
{
    XMLHandler document;
    if (!document.LoadString(text)) {
        FUZZ_CHECK(!document.RootNode());
        return;
    }
    ReadEveryAttribute(document.RootNode());
    // What the handler writes, it reads back to the same text.
    std::wstring saved;
    document.SaveToString(saved);
    XMLHandler reread;
    FUZZ_CHECK(reread.LoadString(saved));
    std::wstring savedAgain;
    reread.SaveToString(savedAgain);
    FUZZ_CHECK(saved == savedAgain);
}

void ShippedConfiguration(const std::wstring& text)
{
    std::unique_ptr<MarkingMenuConfig> config;
    try {
        config = MarkingMenuConfigXmlHandler::FromXml(text);
    } catch (const std::invalid_argument&) {
        return;
    } catch (const XmlAttributeError&) {
        return;
    }
    FUZZ_CHECK(config);
    // A configuration read once survives writing and reading again unchanged.
    const std::wstring written = MarkingMenuConfigXmlHandler::ToXml(*config);
    const std::unique_ptr<MarkingMenuConfig> reread = MarkingMenuConfigXmlHandler::FromXml(written);
    FUZZ_CHECK(MarkingMenuConfigXmlHandler::ToXml(*reread) == written);
}

void UserConfiguration(const std::wstring& text)
{
    MarkingMenuConfig config;
    try {
        MarkingMenuConfigXmlHandler::FromUserConfigXml(config, text);
    } catch (const std::invalid_argument&) {
        return;
    } catch (const XmlAttributeError&) {
        return;
    }
    const std::wstring written = MarkingMenuConfigXmlHandler::UserConfigToXml(config);
    MarkingMenuConfig reread;
    MarkingMenuConfigXmlHandler::FromUserConfigXml(reread, written);
    FUZZ_CHECK(MarkingMenuConfigXmlHandler::UserConfigToXml(reread) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    const std::wstring text
        = QString::fromUtf8(reinterpret_cast<const char*>(bytes), qsizetype(size)).toStdWString();
    HostDocument(text);
    ShippedConfiguration(text);
    UserConfiguration(text);
    return 0;
}
