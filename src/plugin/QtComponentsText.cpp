#include "QtComponentsText.h"

#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::UIComponents {

using Kernel::Framework::IStringLoader;
using Kernel::Framework::ServiceCatalog;
using Kernel::Framework::StringReference;

std::wstring GetWText(const std::wstring& id)
{
    auto loader = ServiceCatalog::Global()->Get<IStringLoader>();
    if (!loader)
        return id;
    return loader->Load(StringReference { id, c_stringTable });
}

QString GetText(const QString& id)
{
    return QString::fromStdWString(GetWText(id.toStdWString()));
}

} // namespace Orvo::UI::UIComponents
