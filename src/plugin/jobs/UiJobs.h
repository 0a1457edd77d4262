#pragma once

#include "Jobs.h"

#include <QPointer>

class QObject;

namespace Orvo::UI::UIComponents {

// Runs its batches from the event loop of context's thread.
class UiJobs : public Jobs
{
public:
    explicit UiJobs(QObject* context);

protected:
    void RequestPerform() override;

private:
    QObject* m_context;
};

} // namespace Orvo::UI::UIComponents
