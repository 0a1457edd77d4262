#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// The steps of a structural project in their order (model, loads, analysis, results, design),
// each with its state. The process toolbar works out the states; this model only holds them.
class WorkflowStepsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum StepState
    {
        NotStarted,
        Done,
        // Done once, but the model changed since.
        NeedsUpdate,
        Error,
        Running,
    };
    Q_ENUM(StepState)

    enum Roles
    {
        StepIdRole = Qt::UserRole + 1,
        TitleRole,
        DescriptionRole,
        ActionTitleRole,
        ShortcutRole,
        StateRole,
        CurrentRole,
        // The state by name ("done", "needsUpdate", ...), for documents, which do not see the enum.
        StateNameRole,
    };
    Q_ENUM(Roles)

    struct Step
    {
        QString id;
        QString titleId;
        QString descriptionId;
        QString actionTitleId;
        QString shortcut;
    };
    static const std::vector<Step>& Steps();

    explicit WorkflowStepsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    StepState State(int row) const;
    void SetState(int row, StepState state);
    int Current() const { return m_current; }
    void SetCurrent(int row);
    int FindRow(const QString& stepId) const;

private:
    std::vector<StepState> m_states;
    int m_current = 0;
};

} // namespace Orvo::UI::UIComponents
