#include "SpotlightProxyModel.h"

#include "SpotlightModel.h"
#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

namespace {

// How much a recent choice is raised over an equally good match.
constexpr int c_recentBonus = 150;

} // namespace

SpotlightProxyModel::SpotlightProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(true);
    sort(0);
    const auto announce = [this] { emit countChanged(); };
    connect(this, &QAbstractItemModel::rowsInserted, this, announce);
    connect(this, &QAbstractItemModel::rowsRemoved, this, announce);
    connect(this, &QAbstractItemModel::modelReset, this, announce);
    connect(this, &QAbstractItemModel::layoutChanged, this, announce);
}

void SpotlightProxyModel::setSourceModel(QAbstractItemModel* model)
{
    for (const auto& connection : std::as_const(m_sourceConnections))
        disconnect(connection);
    m_sourceConnections.clear();
    // Connected before the base class's own connections, so that the scores are forgotten before
    // the base asks for them again.
    if (model) {
        const auto forget = [this] { Forget(); };
        m_sourceConnections << connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, forget)
                            << connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, forget)
                            << connect(model, &QAbstractItemModel::modelAboutToBeReset, this, forget)
                            << connect(model, &QAbstractItemModel::dataChanged, this, forget);
    }
    Forget();
    QSortFilterProxyModel::setSourceModel(model);
    emit countChanged();
}

void SpotlightProxyModel::setSearchText(const QString& searchText)
{
    if (m_searchText == searchText)
        return;
    m_searchText = searchText;
    m_matcher = FuzzyMatcher(searchText);
    m_answersOnly = searchText.trimmed().startsWith(QLatin1Char('='));
    Forget();
    invalidate();
    emit searchTextChanged();
    emit countChanged();
}

void SpotlightProxyModel::Forget()
{
    m_scores.clear();
    m_kindBest.clear();
    m_kindBestKnown = false;
}

int SpotlightProxyModel::sourceRow(int row) const
{
    if (row < 0 || row >= rowCount())
        return -1;
    return mapToSource(index(row, 0)).row();
}

int SpotlightProxyModel::Score(int sourceRow) const
{
    const auto* model = qobject_cast<const SpotlightModel*>(sourceModel());
    const SpotlightModel::Entry* entry = model ? model->EntryAt(sourceRow) : nullptr;
    if (!entry)
        return 0;
    if (entry->answer)
        return 1000 + c_recentBonus;
    if (m_answersOnly)
        return 0;
    const QString key = SpotlightModel::RecentKey(entry->kind, entry->key);
    const auto known = m_scores.constFind(key);
    if (known != m_scores.cend())
        return *known;
    const int recent = model->RecentRank(*entry);
    int score = 0;
    if (m_matcher.IsEmpty())
        score = recent >= 0 ? SpotlightModel::c_recentCapacity - recent : 0;
    else if (const int match = m_matcher.BestScore(entry->searchTexts); match > 0)
        score = match + (recent >= 0 ? c_recentBonus : 0);
    m_scores.insert(key, score);
    return score;
}

int SpotlightProxyModel::KindBest(int kind) const
{
    if (!m_kindBestKnown && sourceModel()) {
        m_kindBest.clear();
        for (int row = 0; row < sourceModel()->rowCount(); ++row) {
            const int rowKind = sourceModel()->index(row, 0).data(SpotlightModel::KindRole).toInt();
            m_kindBest[rowKind] = std::max(m_kindBest.value(rowKind), Score(row));
        }
        m_kindBestKnown = true;
    }
    return m_kindBest.value(kind);
}

bool SpotlightProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    return !sourceParent.isValid() && Score(sourceRow) > 0;
}

bool SpotlightProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const bool leftAnswer = left.data(SpotlightModel::AnswerRole).toBool();
    const bool rightAnswer = right.data(SpotlightModel::AnswerRole).toBool();
    if (leftAnswer != rightAnswer)
        return leftAnswer;
    if (leftAnswer)
        return left.row() < right.row();
    const int leftKind = left.data(SpotlightModel::KindRole).toInt();
    const int rightKind = right.data(SpotlightModel::KindRole).toInt();
    // With nothing typed there is one group, the recent choices.
    if (leftKind != rightKind && !m_matcher.IsEmpty()) {
        const int leftBest = KindBest(leftKind);
        const int rightBest = KindBest(rightKind);
        if (leftBest != rightBest)
            return leftBest > rightBest;
        return leftKind < rightKind;
    }
    const int leftScore = Score(left.row());
    const int rightScore = Score(right.row());
    if (leftScore != rightScore)
        return leftScore > rightScore;
    return left.row() < right.row();
}

QString SpotlightProxyModel::Section(const QModelIndex& sourceIndex) const
{
    if (sourceIndex.data(SpotlightModel::AnswerRole).toBool())
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_ANSWERS"));
    if (m_matcher.IsEmpty())
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_RECENT"));
    switch (sourceIndex.data(SpotlightModel::KindRole).toInt()) {
    case SpotlightModel::Command:
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_COMMANDS"));
    case SpotlightModel::Object:
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_OBJECTS"));
    case SpotlightModel::Table:
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_TABLES"));
    case SpotlightModel::Setting:
        return GetText(QStringLiteral("UI_SPOTLIGHT_SECTION_SETTINGS"));
    default:
        return QString();
    }
}

QVariant SpotlightProxyModel::data(const QModelIndex& index, int role) const
{
    if (role == SectionRole)
        return index.isValid() ? Section(mapToSource(index)) : QVariant();
    if (role == ScoreRole)
        return index.isValid() ? Score(mapToSource(index).row()) : QVariant();
    return QSortFilterProxyModel::data(index, role);
}

QHash<int, QByteArray> SpotlightProxyModel::roleNames() const
{
    QHash<int, QByteArray> names = QSortFilterProxyModel::roleNames();
    names.insert(SectionRole, "section");
    names.insert(ScoreRole, "score");
    return names;
}

} // namespace Orvo::UI::UIComponents
