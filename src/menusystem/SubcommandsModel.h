#pragma once

#include "MenuDefinition.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::UIComponents {

// The variants the menus offer of one command (New member: line, polyline, arc). Each runs the
// command with its own parameters, and only while the command is enabled.
class SubcommandsModel : public QAbstractListModel,
                         public Kernel::Framework::INeedCommandRepository,
                         public Kernel::Framework::INeedUICommandProcessor
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SubcommandsModel)
    Q_PROPERTY(QString commandUuid READ commandUuid WRITE setCommandUuid NOTIFY commandUuidChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Roles
    {
        TextRole = Qt::UserRole + 1,
        IconRole,
        ParametersRole,
    };
    Q_ENUM(Roles)

    explicit SubcommandsModel(QObject* parent = nullptr);
    ~SubcommandsModel() override;

    QString commandUuid() const { return m_commandUuid; }
    void setCommandUuid(const QString& commandUuid);
    int count() const { return rowCount(); }

    Q_INVOKABLE bool trigger(int row);

    void SetDefinition(std::shared_ptr<const MenuDefinition> definition);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;
    void SetUICommandProcessor(std::shared_ptr<Kernel::Framework::IUICommandProcessor> processor) override;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> GetUICommandProcessor() const override;

signals:
    void commandUuidChanged();
    void countChanged();

private:
    void Rebuild();

    QString m_commandUuid;
    std::shared_ptr<const MenuDefinition> m_definition;
    std::vector<MenuSubcommand> m_subcommands;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_repository;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> m_processor;
};

} // namespace Orvo::UI::UIComponents
