#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {
class ICommandRepository;
class RunningCommand;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::Kernel::Tables {
class TableDataCatalog;
}

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::UIComponents {

// Everything the spotlight search can find: the visible commands, the model's named objects,
// the tables and the settings, read from the host's services by reload(); and, in front of
// them, the answers to what is typed now (query): the calculator's result of "=2*3", the point
// "1 2 3" for the running command, the object "member 12". The rows are unranked: the
// SpotlightProxyModel searches and orders them.
class SpotlightModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SpotlightModel)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QStringList recentKeys READ recentKeys WRITE setRecentKeys NOTIFY recentKeysChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Kind
    {
        Calculation,
        Coordinates,
        Command,
        Object,
        Table,
        Setting,
    };
    Q_ENUM(Kind)

    enum Roles
    {
        KindRole = Qt::UserRole + 1,
        KeyRole,
        TitleRole,
        DetailRole,
        IconRole,
        ShortcutRole,
        EnabledRole,
        AnswerRole,
        RecentRole,
        ValueRole,
    };
    Q_ENUM(Roles)

    struct Entry
    {
        Kind kind = Command;
        // The command uuid, object id, table id or setting key; unique with the kind.
        QString key;
        QString title;
        QString detail;
        QString icon;
        QString shortcut;
        // What the search compares: the title first, then synonyms and the like.
        QStringList searchTexts;
        bool enabled = true;
        // An answer to the query rather than something to find.
        bool answer = false;
        // The calculation's result, the point's values, the object's id.
        QVariant value;
    };

    // The most recent choices kept.
    static constexpr int c_recentCapacity = 8;
    // Named objects beyond this many are found by number only, so that the list stays quick to
    // search in a large model.
    static constexpr int c_namedObjectLimit = 5000;

    explicit SpotlightModel(QObject* parent = nullptr);
    ~SpotlightModel() override;

    QString query() const { return m_query; }
    void setQuery(const QString& query);
    // Most recent first; each entry is "<kind>:<key>".
    QStringList recentKeys() const { return m_recentKeys; }
    void setRecentKeys(const QStringList& recentKeys);
    int count() const { return rowCount(); }

    // Reads the commands, objects, tables and settings again.
    Q_INVOKABLE void reload();
    // Answers the query again (the running command changed, so coordinates mean something else).
    Q_INVOKABLE void refreshAnswers();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const Entry* EntryAt(int row) const;
    // -1 when the entry is not recent, else its place (0 the latest).
    int RecentRank(const Entry& entry) const;
    // Puts the entry first among the recent choices.
    void NoteChosen(const Entry& entry);
    static QString RecentKey(Kind kind, const QString& key);

    // The services the entries come from; by default the host's, from its service catalog.
    void SetServices(std::shared_ptr<Kernel::Framework::ICommandRepository> commands,
                     std::shared_ptr<Kernel::Framework::StructuralModel> model,
                     std::shared_ptr<Kernel::Tables::TableDataCatalog> tables,
                     std::shared_ptr<DataModel::Settings> settings,
                     std::shared_ptr<Kernel::Framework::RunningCommand> runningCommand);

signals:
    void queryChanged();
    void recentKeysChanged();
    void countChanged();

private:
    std::vector<Entry> Answers() const;
    void AddCommands(std::vector<Entry>& entries) const;
    void AddNamedObjects(std::vector<Entry>& entries) const;
    void AddTables(std::vector<Entry>& entries) const;
    void AddSettings(std::vector<Entry>& entries) const;

    std::shared_ptr<Kernel::Framework::ICommandRepository> m_commands;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    std::shared_ptr<Kernel::Tables::TableDataCatalog> m_tables;
    std::shared_ptr<DataModel::Settings> m_settings;
    std::shared_ptr<Kernel::Framework::RunningCommand> m_runningCommand;

    QString m_query;
    QStringList m_recentKeys;
    // The answers to the query, then the entries.
    std::vector<Entry> m_answers;
    std::vector<Entry> m_entries;
};

} // namespace Orvo::UI::UIComponents
