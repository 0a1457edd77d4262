#include "SpotlightModel.h"

#include "FuzzyMatcher.h"
#include "SpotlightLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/RunningCommand.h"
#include "datamodel/Settings.h"
#include "framework/Calculator.h"
#include "framework/ServiceCatalog.h"
#include "model/ObjectIds.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"
#include "qtextensions/File.h"
#include "tables/TableDataCatalog.h"
#include "valueentry/InlineCalculator.h"

#include <QMetaEnum>
#include <QRegularExpression>
#include <type_traits>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;
using Kernel::Model::ObjectKind;

namespace {

template<class Record, class = void> struct HasName : std::false_type
{
};
template<class Record> struct HasName<Record, std::void_t<decltype(Record::name)>> : std::true_type
{
};

// A text the host's string table knows; empty when it has none (the loader gives the id back).
QString KnownText(const QString& id)
{
    const QString text = GetText(id);
    return text == id ? QString() : text;
}

// The settings a user can look up, with the texts that name them.
struct SettingInfo
{
    const QString* key;
    const char* nameId;
};

const SettingInfo c_settings[] = {
    { &DataModel::Settings::c_rotationSensitivity, "UI_SETTING_ROTATION_SENSITIVITY" },
    { &DataModel::Settings::c_zoomSensitivity, "UI_SETTING_ZOOM_SENSITIVITY" },
    { &DataModel::Settings::c_zoomFollowCameraDirection, "UI_SETTING_ZOOM_FOLLOW_CAMERA" },
    { &DataModel::Settings::c_zoomNearestLimit, "UI_SETTING_ZOOM_NEAREST_LIMIT" },
    { &DataModel::Settings::c_zoomFarthestLimit, "UI_SETTING_ZOOM_FARTHEST_LIMIT" },
    { &DataModel::Settings::c_objectPickingRadius, "UI_SETTING_PICKING_RADIUS" },
    { &DataModel::Settings::c_rendererType, "UI_SETTING_RENDERER" },
    { &DataModel::Settings::c_accountName, "UI_SETTING_ACCOUNT_NAME" },
    { &DataModel::Settings::c_accountOrganisation, "UI_SETTING_ACCOUNT_ORGANISATION" },
    { &DataModel::Settings::c_accountCountry, "UI_SETTING_ACCOUNT_COUNTRY" },
};

} // namespace

SpotlightModel::SpotlightModel(QObject* parent)
    : QAbstractListModel(parent)
{
    auto catalog = ServiceCatalog::Global();
    SetServices(catalog->Get<ICommandRepository>(), catalog->Get<StructuralModel>(),
                catalog->Get<Kernel::Tables::TableDataCatalog>(), catalog->Get<DataModel::Settings>(),
                catalog->Get<RunningCommand>());
}

SpotlightModel::~SpotlightModel() = default;

void SpotlightModel::SetServices(std::shared_ptr<ICommandRepository> commands,
                                 std::shared_ptr<StructuralModel> model,
                                 std::shared_ptr<Kernel::Tables::TableDataCatalog> tables,
                                 std::shared_ptr<DataModel::Settings> settings,
                                 std::shared_ptr<RunningCommand> runningCommand)
{
    m_commands = std::move(commands);
    m_model = std::move(model);
    m_tables = std::move(tables);
    m_settings = std::move(settings);
    m_runningCommand = std::move(runningCommand);
    reload();
}

void SpotlightModel::setQuery(const QString& query)
{
    if (m_query == query)
        return;
    m_query = query;
    refreshAnswers();
    emit queryChanged();
}

void SpotlightModel::setRecentKeys(const QStringList& recentKeys)
{
    QStringList keys;
    for (const QString& key : recentKeys) {
        if (!key.isEmpty() && !keys.contains(key) && keys.size() < c_recentCapacity)
            keys << key;
    }
    if (m_recentKeys == keys)
        return;
    m_recentKeys = keys;
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), { RecentRole });
    emit recentKeysChanged();
}

QString SpotlightModel::RecentKey(Kind kind, const QString& key)
{
    return QString::fromLatin1(QMetaEnum::fromType<Kind>().valueToKey(kind)) + QLatin1Char(':') + key;
}

int SpotlightModel::RecentRank(const Entry& entry) const
{
    return entry.answer ? -1 : int(m_recentKeys.indexOf(RecentKey(entry.kind, entry.key)));
}

void SpotlightModel::NoteChosen(const Entry& entry)
{
    if (entry.answer && entry.kind != Object)
        return;
    QStringList keys = m_recentKeys;
    const QString key = RecentKey(entry.kind, entry.key);
    keys.removeAll(key);
    keys.prepend(key);
    setRecentKeys(keys.mid(0, c_recentCapacity));
}

void SpotlightModel::reload()
{
    std::vector<Entry> entries;
    CatchAtSpotlightBoundary("Reading the commands", 0, [&] { return AddCommands(entries), 0; });
    CatchAtSpotlightBoundary("Reading the model's objects", 0, [&] { return AddNamedObjects(entries), 0; });
    CatchAtSpotlightBoundary("Reading the tables", 0, [&] { return AddTables(entries), 0; });
    CatchAtSpotlightBoundary("Reading the settings", 0, [&] { return AddSettings(entries), 0; });
    beginResetModel();
    m_entries = std::move(entries);
    m_answers
        = CatchAtSpotlightBoundary("Answering the search", std::vector<Entry>(), [&] { return Answers(); });
    endResetModel();
    emit countChanged();
}

void SpotlightModel::refreshAnswers()
{
    std::vector<Entry> answers
        = CatchAtSpotlightBoundary("Answering the search", std::vector<Entry>(), [&] { return Answers(); });
    // Answers come and go as one types: replace them without touching the entries behind them.
    const int before = int(m_answers.size());
    const int after = int(answers.size());
    if (before > 0) {
        beginRemoveRows(QModelIndex(), 0, before - 1);
        m_answers.clear();
        endRemoveRows();
    }
    if (after > 0) {
        beginInsertRows(QModelIndex(), 0, after - 1);
        m_answers = std::move(answers);
        endInsertRows();
    }
    if (before != after)
        emit countChanged();
}

std::vector<SpotlightModel::Entry> SpotlightModel::Answers() const
{
    std::vector<Entry> answers;
    const QString text = m_query.trimmed();
    if (text.isEmpty())
        return answers;

    // "=2*3": the calculator's answer. "=" alone or an expression it cannot read answers nothing.
    if (text.startsWith(QLatin1Char('='))) {
        double value = 0.0;
        const QString expression = text.mid(1).trimmed();
        if (!expression.isEmpty() && Calculator::Evaluate(expression.toStdWString(), value)) {
            Entry entry;
            entry.kind = Calculation;
            entry.key = expression;
            entry.title = InlineCalculator().formatValue(value);
            entry.detail = expression;
            entry.value = value;
            entry.answer = true;
            answers.push_back(entry);
        }
        return answers;
    }

    // "1 2 3", "1;2;3", "=1+1 2": values for the running command, as the inline calculator's
    // multiple mode reads them.
    if (m_runningCommand && m_runningCommand->IsRunning()) {
        InlineCalculator calculator;
        calculator.setMultipleEnabled(true);
        calculator.setSeparators({ QStringLiteral(";"), QStringLiteral(" ") });
        calculator.setExpression(text);
        std::vector<double> values(calculator.getMultipleResults().cbegin(),
                                   calculator.getMultipleResults().cend());
        if (calculator.isValid() && m_runningCommand->Accepts(values)) {
            values.resize(std::size_t(m_runningCommand->ValueCount()), 0.0);
            QStringList parts;
            QVariantList list;
            for (double value : values) {
                parts << calculator.formatValue(value);
                list << value;
            }
            Entry entry;
            entry.kind = Coordinates;
            entry.key = text;
            entry.title = QStringLiteral("(%1)").arg(parts.join(QStringLiteral("; ")));
            entry.detail = KnownText(QString::fromStdWString(m_runningCommand->Prompt()));
            const auto command
                = m_commands ? m_commands->FindCommand(m_runningCommand->CommandUuid()) : std::nullopt;
            if (command)
                entry.icon = QtExtensions::File::createQmlFilePathFromApplicationPath(command->icon);
            entry.value = list;
            entry.answer = true;
            answers.push_back(entry);
            return answers;
        }
    }

    // "member 12", "12 node", "m 12": an object by its number, whatever its kind.
    static const QRegularExpression number(QStringLiteral("(\\d+)"));
    if (m_model && text.count(number) == 1) {
        const int objectNumber = number.match(text).captured(1).toInt();
        const FuzzyMatcher matcher(text);
        for (ObjectKind kind : Kernel::Model::c_allKinds) {
            if (objectNumber <= 0 || objectNumber > Kernel::Model::c_largestNumber)
                break;
            const ObjectId id = Kernel::Model::MakeObjectId(kind, objectNumber);
            if (!m_model->Exists(id))
                continue;
            const QString phrase = m_model->ObjectsPhrase({ id });
            // The number alone finds the object of every kind that has it.
            const bool numberOnly = text == QString::number(objectNumber);
            if (!numberOnly && matcher.Score(phrase) == 0)
                continue;
            Entry entry;
            entry.kind = Object;
            entry.key = QString::number(id);
            entry.title = phrase;
            entry.searchTexts = { phrase };
            entry.value = id;
            entry.answer = true;
            answers.push_back(entry);
        }
    }
    return answers;
}

void SpotlightModel::AddCommands(std::vector<Entry>& entries) const
{
    if (!m_commands)
        return;
    for (const CommandDefinition& command : m_commands->GetCommands()) {
        if (!command.visible)
            continue;
        Entry entry;
        entry.kind = Command;
        entry.key = QString::fromStdWString(command.uuid);
        const QString nameId = QString::fromStdWString(command.nameId);
        entry.title = GetText(nameId);
        entry.shortcut = QString::fromStdWString(command.shortcut);
        entry.icon = QtExtensions::File::createQmlFilePathFromApplicationPath(command.icon);
        entry.enabled = command.enabled;
        entry.searchTexts << entry.title;
        // Other words people use for it ("beam" for a member), separated by commas.
        const QString synonyms = KnownText(nameId + QStringLiteral("_SYNONYMS"));
        for (const QString& synonym : synonyms.split(QLatin1Char(','), Qt::SkipEmptyParts))
            entry.searchTexts << synonym.trimmed();
        if (!entry.shortcut.isEmpty())
            entry.searchTexts << entry.shortcut;
        entry.detail = KnownText(
            QStringLiteral("UI_COMMAND_GROUP_%1").arg(QString::fromStdWString(command.group).toUpper()));
        entries.push_back(entry);
    }
}

void SpotlightModel::AddNamedObjects(std::vector<Entry>& entries) const
{
    if (!m_model)
        return;
    int added = 0;
    for (ObjectKind kind : Kernel::Model::c_allKinds) {
        Kernel::Model::VisitKind(kind, [&](auto tag) {
            using Record = typename decltype(tag)::Type;
            if constexpr (HasName<Record>::value) {
                const auto& table = m_model->Structure().template Table<Record>();
                for (std::size_t i = 0; i < table.Size() && added < c_namedObjectLimit; ++i) {
                    const Record& record = table.At(i);
                    if (record.name.isEmpty())
                        continue;
                    const ObjectId id = Kernel::Model::MakeObjectId(kind, record.number);
                    Entry entry;
                    entry.kind = Object;
                    entry.key = QString::number(id);
                    entry.title = record.name;
                    entry.detail = m_model->ObjectsPhrase({ id });
                    entry.searchTexts = { record.name, entry.detail };
                    entry.value = id;
                    entries.push_back(entry);
                    ++added;
                }
            }
        });
    }
}

void SpotlightModel::AddTables(std::vector<Entry>& entries) const
{
    if (!m_tables)
        return;
    const QString tablesWord = GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_TABLES"));
    for (const auto& workstation : m_tables->Workstations()) {
        const QString workstationLabel = QString::fromStdWString(workstation.label);
        for (const auto& table : workstation.tables) {
            Entry entry;
            entry.kind = Table;
            entry.key = QString::fromStdWString(table->GetId());
            entry.title = QString::fromStdWString(table->GetLabel());
            entry.detail = workstationLabel;
            // "nodes table", "loads members" find it too.
            entry.searchTexts = { entry.title, workstationLabel + QLatin1Char(' ') + entry.title,
                                  entry.title + QLatin1Char(' ') + tablesWord };
            entry.value = QString::fromStdWString(workstation.id);
            entries.push_back(entry);
        }
    }
}

void SpotlightModel::AddSettings(std::vector<Entry>& entries) const
{
    if (!m_settings)
        return;
    const QString settingsWord = GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_SETTINGS"));
    for (const SettingInfo& setting : c_settings) {
        Entry entry;
        entry.kind = Setting;
        entry.key = *setting.key;
        entry.title = GetText(QString::fromLatin1(setting.nameId));
        const QVariant value = m_settings->Value(*setting.key);
        entry.detail = value.isValid() ? value.toString() : KnownText(QStringLiteral("UI_SETTING_DEFAULT"));
        // The key's own words ("Interaction/ZoomSensitivity") find it too.
        QString keyWords = *setting.key;
        keyWords.replace(QRegularExpression(QStringLiteral("([a-z])([A-Z])")), QStringLiteral("\\1 \\2"));
        entry.searchTexts = { entry.title, keyWords, entry.title + QLatin1Char(' ') + settingsWord };
        entries.push_back(entry);
    }
}

int SpotlightModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_answers.size() + m_entries.size());
}

const SpotlightModel::Entry* SpotlightModel::EntryAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    const auto answers = int(m_answers.size());
    return row < answers ? &m_answers[std::size_t(row)] : &m_entries[std::size_t(row - answers)];
}

QVariant SpotlightModel::data(const QModelIndex& index, int role) const
{
    const Entry* entry = index.isValid() ? EntryAt(index.row()) : nullptr;
    if (!entry)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return entry->title;
    case KindRole:
        return entry->kind;
    case KeyRole:
        return entry->key;
    case DetailRole:
        return entry->detail;
    case IconRole:
        return entry->icon;
    case ShortcutRole:
        return entry->shortcut;
    case EnabledRole:
        return entry->enabled;
    case AnswerRole:
        return entry->answer;
    case RecentRole:
        return RecentRank(*entry);
    case ValueRole:
        return entry->value;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> SpotlightModel::roleNames() const
{
    return {
        { Qt::DisplayRole, "display" }, { KindRole, "kind" },         { KeyRole, "key" },
        { TitleRole, "title" },         { DetailRole, "detail" },     { IconRole, "icon" },
        { ShortcutRole, "shortcut" },   { EnabledRole, "available" }, { AnswerRole, "answer" },
        { RecentRole, "recent" },       { ValueRole, "value" },
    };
}

} // namespace Orvo::UI::UIComponents
