#include "WorkflowStepsModel.h"

#include "plugin/QtComponentsText.h"

#include <QMetaEnum>

namespace Orvo::UI::UIComponents {

const std::vector<WorkflowStepsModel::Step>& WorkflowStepsModel::Steps()
{
    // Ctrl and the step's place; F5 runs the current step's action wherever the focus is. No
    // Shift: with it a digit key types another character on most layouts ("#" for 3 on a US
    // keyboard), and the shortcut never fires.
    static const std::vector<Step> steps {
        { QStringLiteral("model"), QStringLiteral("UI_PROCESS_MODEL"),
          QStringLiteral("UI_PROCESS_MODEL_DESCRIPTION"), QStringLiteral("UI_PROCESS_MODEL_ACTION"),
          QStringLiteral("Ctrl+1") },
        { QStringLiteral("loads"), QStringLiteral("UI_PROCESS_LOADS"),
          QStringLiteral("UI_PROCESS_LOADS_DESCRIPTION"), QStringLiteral("UI_PROCESS_LOADS_ACTION"),
          QStringLiteral("Ctrl+2") },
        { QStringLiteral("analysis"), QStringLiteral("UI_PROCESS_ANALYSIS"),
          QStringLiteral("UI_PROCESS_ANALYSIS_DESCRIPTION"), QStringLiteral("UI_PROCESS_ANALYSIS_ACTION"),
          QStringLiteral("Ctrl+3") },
        { QStringLiteral("results"), QStringLiteral("UI_PROCESS_RESULTS"),
          QStringLiteral("UI_PROCESS_RESULTS_DESCRIPTION"), QStringLiteral("UI_PROCESS_RESULTS_ACTION"),
          QStringLiteral("Ctrl+4") },
        { QStringLiteral("design"), QStringLiteral("UI_PROCESS_DESIGN"),
          QStringLiteral("UI_PROCESS_DESIGN_DESCRIPTION"), QStringLiteral("UI_PROCESS_DESIGN_ACTION"),
          QStringLiteral("Ctrl+5") },
    };
    return steps;
}

WorkflowStepsModel::WorkflowStepsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_states(Steps().size(), NotStarted)
{ }

int WorkflowStepsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(Steps().size());
}

QVariant WorkflowStepsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Step& step = Steps()[std::size_t(index.row())];
    switch (role) {
    case StepIdRole:
        return step.id;
    case Qt::DisplayRole:
    case TitleRole:
        return GetText(step.titleId);
    case DescriptionRole:
        return GetText(step.descriptionId);
    case ActionTitleRole:
        return GetText(step.actionTitleId);
    case ShortcutRole:
        return step.shortcut;
    case StateRole:
        return State(index.row());
    case CurrentRole:
        return index.row() == m_current;
    case StateNameRole: {
        const char* key = QMetaEnum::fromType<StepState>().valueToKey(State(index.row()));
        QString name = QString::fromLatin1(key);
        name[0] = name[0].toLower();
        return name;
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> WorkflowStepsModel::roleNames() const
{
    return { { StepIdRole, "stepId" },           { TitleRole, "title" },
             { DescriptionRole, "description" }, { ActionTitleRole, "actionTitle" },
             { ShortcutRole, "shortcut" },       { StateRole, "stepState" },
             { CurrentRole, "current" }, { StateNameRole, "stateName" } };
}

WorkflowStepsModel::StepState WorkflowStepsModel::State(int row) const
{
    return row >= 0 && row < rowCount() ? m_states[std::size_t(row)] : NotStarted;
}

void WorkflowStepsModel::SetState(int row, StepState state)
{
    if (row < 0 || row >= rowCount() || m_states[std::size_t(row)] == state)
        return;
    m_states[std::size_t(row)] = state;
    emit dataChanged(index(row), index(row), { StateRole, StateNameRole });
}

void WorkflowStepsModel::SetCurrent(int row)
{
    if (row < 0 || row >= rowCount() || row == m_current)
        return;
    const int previous = m_current;
    m_current = row;
    emit dataChanged(index(previous), index(previous), { CurrentRole });
    emit dataChanged(index(row), index(row), { CurrentRole });
}

int WorkflowStepsModel::FindRow(const QString& stepId) const
{
    const auto& steps = Steps();
    for (std::size_t row = 0; row < steps.size(); ++row) {
        if (steps[row].id == stepId)
            return int(row);
    }
    return -1;
}

} // namespace Orvo::UI::UIComponents
