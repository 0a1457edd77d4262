#pragma once

#include "TagModel.h"
#include "commands/CommandInput.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Framework {
class RunningCommand;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::UI::UIComponents {

// The inputs of the running command, grouped as the command groups them: one row per group (a
// foldable container: "Vector", "Copies", "Objects"), each with its fields in the command's
// order. Follows the command: a new command or a new set of inputs rebuilds the rows, a changed
// value updates its container only. Folding is the user's and outlives the command.
class InputPanelContainerModel : public QAbstractListModel, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(InputPanelContainerModel)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QStringList foldedContainers READ foldedContainers WRITE setFoldedContainers NOTIFY
                   foldedContainersChanged)

public:
    enum Roles
    {
        ContainerIdRole = Qt::UserRole + 1,
        TitleRole,
        CategoryRole,
        FoldedRole,
        FieldsRole,
    };
    Q_ENUM(Roles)

    // What a field shows; a field's map has inputId, label, kind, number, unit, choices, choice.
    enum FieldKind
    {
        NumberField,
        ChoiceField,
        ObjectsField,
    };
    Q_ENUM(FieldKind)

    explicit InputPanelContainerModel(QObject* parent = nullptr);
    ~InputPanelContainerModel() override;

    int count() const { return rowCount(); }
    QStringList foldedContainers() const;
    void setFoldedContainers(const QStringList& containers);

    Q_INVOKABLE void setFolded(int row, bool folded);
    // Each returns false, changing nothing, when the running command refuses the value.
    Q_INVOKABLE bool setNumber(const QString& inputId, double value);
    Q_INVOKABLE bool setChoice(const QString& inputId, int choice);
    // The picked objects of an input, made once per input and kept.
    Q_INVOKABLE Orvo::UI::UIComponents::TagModel* tags(const QString& inputId);

    void SetRunningCommand(std::shared_ptr<Kernel::Framework::RunningCommand> command);
    void SetStructuralModel(std::shared_ptr<Kernel::Framework::StructuralModel> model);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    void countChanged();
    void foldedContainersChanged();

private:
    struct Container
    {
        QString id;
        QString category;
        std::vector<Kernel::Framework::CommandInput> inputs;
    };
    void Rebuild();
    void OnRunningCommandChanged();
    void UpdateInput(const std::wstring& inputId);
    void UpdateTags(const Kernel::Framework::CommandInput& input);
    QVariantList Fields(const Container& container) const;

    std::vector<Container> m_containers;
    // The command the rows are of; empty when none runs.
    std::wstring m_builtFor;
    QSet<QString> m_folded;
    QHash<QString, TagModel*> m_tags;
    std::shared_ptr<Kernel::Framework::RunningCommand> m_command;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    Kernel::Framework::EventConnection m_commandConnection;
    Kernel::Framework::EventConnection m_inputsConnection;
};

} // namespace Orvo::UI::UIComponents
