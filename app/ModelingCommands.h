#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <vector>

// The demo's handlers of the interactive modelling commands: New node waits for one point, New
// member for its start and end points. Each starts the host's running command when the command
// runs, takes the points any input surface offers it (the spotlight, the input panel), and
// adds the objects to the structural model as one undo step each.
class ModelingCommands : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ModelingCommands)
    QML_SINGLETON
    Q_PROPERTY(QString newMemberUuid READ newMemberUuid CONSTANT)
    Q_PROPERTY(QString newNodeUuid READ newNodeUuid CONSTANT)
    Q_PROPERTY(QString lastInput READ lastInput NOTIFY inputTaken)
    Q_PROPERTY(QString lastResult READ lastResult NOTIFY inputTaken)

public:
    static constexpr const wchar_t* c_newNode = L"a3715f6c-5dd8-4c55-9ad3-4f2b57ea0661";
    static constexpr const wchar_t* c_newMember = L"d395689b-b049-44ce-8f57-680eddf6ef26";

    explicit ModelingCommands(QObject* parent = nullptr);

    QString newMemberUuid() const { return QString::fromWCharArray(c_newMember); }
    QString newNodeUuid() const { return QString::fromWCharArray(c_newNode); }
    QString lastInput() const { return m_lastInput; }
    QString lastResult() const { return m_lastResult; }

    // Stops the running command without adding anything.
    Q_INVOKABLE void cancel();

signals:
    void inputTaken();

private:
    void OnInput(const std::wstring& commandUuid, const std::vector<double>& values);

    std::vector<double> m_startPoint;
    QString m_lastInput;
    QString m_lastResult;
    Orvo::Kernel::Framework::EventConnection m_executedConnection;
    Orvo::Kernel::Framework::EventConnection m_inputConnection;
};
