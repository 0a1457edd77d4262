#pragma once

#include "HostKitExport.h"
#include "IServiceClient.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace Orvo::Kernel::Framework {

// The host's registry of services, looked up by interface type. Components never construct
// services themselves: they ask the catalog, or let Inject() fill in their client interfaces.
class HOSTKIT_EXPORT ServiceCatalog : public std::enable_shared_from_this<ServiceCatalog>
{
public:
    using Injector = std::function<void(IServiceClient&, ServiceCatalog&)>;

    // The process-wide catalog. When no host installed one, the first call creates it with the
    // host kit's default services, so components also work in a bare QML engine.
    static std::shared_ptr<ServiceCatalog> Global();
    static void SetGlobal(std::shared_ptr<ServiceCatalog> catalog);
    // A fresh catalog holding the host kit's default services.
    static std::shared_ptr<ServiceCatalog> CreateWithDefaults();

    template<class Service> void Register(std::shared_ptr<Service> service)
    {
        m_services[typeid(Service)] = std::move(service);
    }

    template<class Service> std::shared_ptr<Service> Get() const
    {
        auto it = m_services.find(typeid(Service));
        return it == m_services.end() ? nullptr : std::static_pointer_cast<Service>(it->second);
    }

    // Injectors know one client interface each; Inject runs all of them on the client.
    void AddInjector(Injector injector);
    void Inject(IServiceClient& client);

private:
    std::unordered_map<std::type_index, std::shared_ptr<void>> m_services;
    std::vector<Injector> m_injectors;
};

} // namespace Orvo::Kernel::Framework
