#pragma once

#include "ITableData.h"

#include <memory>
#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

// A group of tables a user works with together (the model, its loads, the results).
struct TableWorkstation
{
    std::wstring id;
    std::wstring label;
    std::wstring iconName;
    std::vector<std::shared_ptr<ITableData>> tables;
};

} // namespace Orvo::Kernel::Tables
