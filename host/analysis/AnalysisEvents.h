#pragma once

#include "model/ObjectIds.h"

#include <QString>
#include <cstdint>

namespace Orvo::Kernel::Analysis {

// Posted when an analysis ended, however it ended; message says how, in the user's language.
struct AnalysisFinishedEvent
{
    bool succeeded = false;
    bool cancelled = false;
    QString message;
    std::int32_t degreesOfFreedom = 0;
    double seconds = 0.0;
    // The object that kept the analysis from running (a member without length), 0 when none did:
    // a message about it can offer to select it.
    Model::ObjectId object = 0;
};

// Posted when the members were checked against the latest results; message says how it went, in
// the user's language.
struct DesignCheckedEvent
{
    bool passes = false;
    double maxUtilisation = 0.0;
    QString message;
    // The member with the largest utilisation, 0 when there are no members.
    Model::ObjectId governingMember = 0;
};

} // namespace Orvo::Kernel::Analysis
