#pragma once

#include "commands/CommandInput.h"
#include "framework/EventConnection.h"
#include "model/ObjectIds.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::Kernel::Framework {
class RunningCommand;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

// The demo's handlers of the interactive modelling commands. New node waits for one point, New
// member for its start and end points; both also show their point (and New member its length
// and direction) as inputs that the input panel edits and Apply acts on. Move takes the selected
// nodes and members with a vector and whether to move or copy them, and acts on Apply. Each
// starts the host's running command when the command runs, takes the points any input surface
// offers it (the spotlight, the input panel), and changes the structural model as one undo step.
class ModelingCommands : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ModelingCommands)
    QML_SINGLETON
    Q_PROPERTY(QString newMemberUuid READ newMemberUuid CONSTANT)
    Q_PROPERTY(QString newNodeUuid READ newNodeUuid CONSTANT)
    Q_PROPERTY(QString moveUuid READ moveUuid CONSTANT)
    Q_PROPERTY(QString lastInput READ lastInput NOTIFY inputTaken)
    Q_PROPERTY(QString lastResult READ lastResult NOTIFY inputTaken)

public:
    static constexpr const wchar_t* c_newNode = L"a3715f6c-5dd8-4c55-9ad3-4f2b57ea0661";
    static constexpr const wchar_t* c_newMember = L"d395689b-b049-44ce-8f57-680eddf6ef26";
    static constexpr const wchar_t* c_move = L"34ecfcf1-2343-4e3d-adcb-722902af15fd";

    // Choices of New member's direction and of Move's mode, in the order offered.
    enum class Direction
    {
        AlongX,
        AlongY,
        AlongZ,
    };
    enum class MoveMode
    {
        Move,
        Copy,
    };

    explicit ModelingCommands(QObject* parent = nullptr);

    QString newMemberUuid() const { return QString::fromWCharArray(c_newMember); }
    QString newNodeUuid() const { return QString::fromWCharArray(c_newNode); }
    QString moveUuid() const { return QString::fromWCharArray(c_move); }
    QString lastInput() const { return m_lastInput; }
    QString lastResult() const { return m_lastResult; }

    // Stops the running command without changing the model.
    Q_INVOKABLE void cancel();

    // What each command asks for when it starts; Move's objects are the selected nodes and
    // members.
    static std::vector<Orvo::Kernel::Framework::CommandInput> PointInputs(const std::vector<double>& point);
    static std::vector<Orvo::Kernel::Framework::CommandInput>
    NewMemberInputs(const std::vector<double>& start);
    static std::vector<Orvo::Kernel::Framework::CommandInput>
    MoveInputs(const std::vector<Orvo::Kernel::Model::ObjectId>& selection);

signals:
    void inputTaken();

private:
    void Start(const std::wstring& commandUuid);
    void OnInput(const std::wstring& commandUuid, const std::vector<double>& values);
    void OnApply(const std::wstring& commandUuid);
    void ApplyMove(Orvo::Kernel::Framework::RunningCommand& running,
                   Orvo::Kernel::Framework::StructuralModel& model);
    Orvo::Kernel::Model::ObjectId AddMember(Orvo::Kernel::Framework::StructuralModel& model,
                                            const std::vector<double>& start, const std::vector<double>& end);
    // The point the running command shows, and showing another one there.
    static std::vector<double> ShownPoint(const Orvo::Kernel::Framework::RunningCommand& running);
    static void ShowPoint(Orvo::Kernel::Framework::RunningCommand& running, const std::vector<double>& point);

    std::vector<double> m_startPoint;
    QString m_lastInput;
    QString m_lastResult;
    Orvo::Kernel::Framework::EventConnection m_executedConnection;
    Orvo::Kernel::Framework::EventConnection m_inputConnection;
    Orvo::Kernel::Framework::EventConnection m_applyConnection;
};
