#include "MultiEditSearchResult.h"

#include "TableContentFilterModel.h"
#include "TableContentModel.h"
#include "TableSelectionFilterModel.h"
#include "TableSelectionModel.h"
#include "TablesLogging.h"
#include "ValueTextFilterCondition.h"
#include "plugin/QtComponentsText.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

MultiEditSearchResult::MultiEditSearchResult(QObject* parent)
    : MultiEditSearchResult(nullptr, parent)
{ }

MultiEditSearchResult::MultiEditSearchResult(TableContentFilterModel* table, QObject* parent)
    : QObject(parent)
    , m_table(table)
{
    connect(this, &MultiEditSearchResult::currentMatchIndexChanged, this,
            &MultiEditSearchResult::reportChanged);
    connect(this, &MultiEditSearchResult::matchCountChanged, this, &MultiEditSearchResult::reportChanged);
    if (!table)
        return;
    // The matches are places in the filtered table: when its rows change they no longer hold.
    connect(table, &QAbstractItemModel::modelReset, this, &MultiEditSearchResult::Invalidate);
    connect(table, &QAbstractItemModel::layoutChanged, this, &MultiEditSearchResult::Invalidate);
    connect(table, &QAbstractItemModel::rowsInserted, this, &MultiEditSearchResult::Invalidate);
    connect(table, &QAbstractItemModel::rowsRemoved, this, &MultiEditSearchResult::Invalidate);
    connect(table, &QAbstractItemModel::columnsInserted, this, &MultiEditSearchResult::Invalidate);
    connect(table, &QAbstractItemModel::columnsRemoved, this, &MultiEditSearchResult::Invalidate);
    connect(table->selectionModel(), &TableSelectionFilterModel::currentSelectedIndexChanged, this,
            &MultiEditSearchResult::OnSelectionMoved);
}

void MultiEditSearchResult::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged();
    emit currentMatchIndexChanged();
}

void MultiEditSearchResult::SearchNext(QString const& text)
{
    if (!m_searchText.isNull() && text != m_searchText)
        Invalidate();
    if (!m_searchText.isNull() || text.isEmpty() || !m_table) {
        SelectNext();
        return;
    }
    m_searchText = text;
    const ValueTextFilterCondition condition(text);
    const TableContentModel* source = m_table->GetSourceModel();
    if (source) {
        CatchAtBoundary("MultiEditSearchResult::SearchNext", [&]() {
            const int rows = m_table->rowCountSubmitted();
            const int columns = m_table->columnCount();
            for (int row = 0; row < rows; ++row) {
                for (int column = 0; column < columns; ++column) {
                    const QModelIndex sourceIndex = m_table->mapToSource(m_table->index(row, column));
                    if (!sourceIndex.isValid())
                        continue;
                    const TableCellContent& cell
                        = source->GetFilledCell(sourceIndex.row(), sourceIndex.column(),
                                                TableContentModel::ContentRequest::VisibleColumns);
                    if (condition.Evaluate(cell))
                        m_matches.emplace_back(row, column);
                }
            }
        });
    }
    if (!m_matches.empty())
        emit matchCountChanged();
    SelectNext();
}

void MultiEditSearchResult::SelectNext()
{
    if (!m_matches.empty() && m_table) {
        TableSelectionFilterModel* selection = m_table->selectionModel();
        const QModelIndex current = selection->getCurrentSelectedIndex();
        auto next = m_matches.begin();
        if (current.isValid())
            next = std::upper_bound(m_matches.begin(), m_matches.end(),
                                    Match(current.row(), current.column()));
        if (next == m_matches.end())
            next = m_matches.begin();
        m_moving = true;
        selection->select(m_table->index(next->first, next->second), TableSelectionModel::CleanSelect, true);
        m_moving = false;
    }
    const bool wasActive = m_active;
    m_active = true;
    m_currentMatchIndex.reset();
    if (!wasActive)
        emit activeChanged();
    emit currentMatchIndexChanged();
}

void MultiEditSearchResult::Invalidate()
{
    m_searchText = QString();
    if (m_active) {
        m_active = false;
        emit activeChanged();
    }
    if (!m_matches.empty()) {
        m_matches.clear();
        emit matchCountChanged();
    }
    m_currentMatchIndex.reset();
    emit currentMatchIndexChanged();
}

void MultiEditSearchResult::OnSelectionMoved()
{
    if (m_moving || !m_active)
        return;
    // The user moved on: the current match is wherever the selection now is, if anywhere.
    m_currentMatchIndex.reset();
    emit currentMatchIndexChanged();
}

int MultiEditSearchResult::getCurrentMatchIndex() const
{
    if (!m_active)
        return -1;
    if (!m_currentMatchIndex) {
        m_currentMatchIndex = -1;
        const QModelIndex current
            = m_table ? m_table->selectionModel()->getCurrentSelectedIndex() : QModelIndex();
        if (current.isValid()) {
            const Match wanted(current.row(), current.column());
            const auto it = std::lower_bound(m_matches.begin(), m_matches.end(), wanted);
            if (it != m_matches.end() && *it == wanted)
                m_currentMatchIndex = static_cast<int>(it - m_matches.begin());
        }
    }
    return *m_currentMatchIndex;
}

QString MultiEditSearchResult::getReport() const
{
    if (m_matches.empty())
        return GetText(QStringLiteral("UI_TABLE_MULTIPLE_EDITBOX_SEARCH_REPORT_NOMATCH"));
    return GetText(QStringLiteral("UI_TABLE_MULTIPLE_EDITBOX_SEARCH_REPORT_MATCH"))
        .arg(getCurrentMatchIndex() + 1)
        .arg(getMatchCount());
}

} // namespace Orvo::UI::UIComponents
