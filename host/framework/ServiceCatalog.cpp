#include "ServiceCatalog.h"

#include "DefaultServices.h"

#include <mutex>

namespace Orvo::Kernel::Framework {

namespace {
std::mutex g_globalMutex;
std::shared_ptr<ServiceCatalog> g_global;
} // namespace

std::shared_ptr<ServiceCatalog> ServiceCatalog::Global()
{
    std::lock_guard lock(g_globalMutex);
    if (!g_global)
        g_global = CreateWithDefaults();
    return g_global;
}

void ServiceCatalog::SetGlobal(std::shared_ptr<ServiceCatalog> catalog)
{
    std::lock_guard lock(g_globalMutex);
    g_global = std::move(catalog);
}

std::shared_ptr<ServiceCatalog> ServiceCatalog::CreateWithDefaults()
{
    auto catalog = std::make_shared<ServiceCatalog>();
    DefaultServices::Install(*catalog);
    return catalog;
}

void ServiceCatalog::AddInjector(Injector injector)
{
    m_injectors.push_back(std::move(injector));
}

void ServiceCatalog::Inject(IServiceClient& client)
{
    for (const auto& injector : m_injectors)
        injector(client, *this);
}

} // namespace Orvo::Kernel::Framework
