#pragma once

#include "CommandInput.h"
#include "HostKitExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Orvo::Kernel::Framework {

class EventBus;

// The interactive command the user is running (New member waits for its points, Move for its
// vector), so that any input surface can hand it typed values: the command's handler starts and
// finishes it, surfaces offer values. Changes and offers are posted on the event bus
// (RunningCommandEvents.h). One command runs at a time; starting another replaces it.
class HOSTKIT_EXPORT RunningCommand
{
public:
    explicit RunningCommand(std::weak_ptr<EventBus> eventbus = {});

    // valueCount is how many values one input takes (3 for a point); prompt is a text
    // identifier of what the command asks for ("UI_PROMPT_START_POINT").
    void Start(const std::wstring& commandUuid, const std::wstring& prompt, int valueCount = 3);
    // Changes what the running command asks for next, keeping the command.
    void SetPrompt(const std::wstring& prompt, int valueCount);
    void Finish();

    // What else the command takes (its parameters, its picked objects), in the order shown. A
    // change of the whole list and of one value are each announced (RunningCommandInputsChanged).
    void SetInputs(std::vector<CommandInput> inputs);
    const std::vector<CommandInput>& Inputs() const { return m_inputs; }
    const CommandInput* FindInput(const std::wstring& id) const;
    // Each returns false, changing nothing, for an unknown input, one of another kind, a value
    // that is not finite or a choice out of range.
    bool SetNumber(const std::wstring& id, double value);
    bool SetChoice(const std::wstring& id, int choice);
    bool RemoveObject(const std::wstring& id, int objectId);
    // The user confirmed the inputs (Apply): the command's handler acts on them.
    bool Apply();

    bool IsRunning() const { return !m_commandUuid.empty(); }
    const std::wstring& CommandUuid() const { return m_commandUuid; }
    const std::wstring& Prompt() const { return m_prompt; }
    int ValueCount() const { return m_valueCount; }

    // Whether the values are an input the running command takes: as many as it asks for, or
    // fewer for a point (missing coordinates are 0), every one finite.
    bool Accepts(const std::vector<double>& values) const;
    // Hands the values to the command; false, posting nothing, when it does not take them.
    bool Offer(const std::vector<double>& values);

private:
    void Announce() const;

    std::weak_ptr<EventBus> m_eventbus;
    std::wstring m_commandUuid;
    std::wstring m_prompt;
    int m_valueCount = 0;
    std::vector<CommandInput> m_inputs;

    CommandInput* Find(const std::wstring& id, CommandInput::Kind kind);
    void AnnounceInput(const std::wstring& id) const;
};

} // namespace Orvo::Kernel::Framework
