#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <optional>
#include <utility>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableContentFilterModel;

// The search of the multi-edit box ("?text"): every cell of the filtered table that contains the text,
// in reading order, visited one after the other with wrap-around.
class MultiEditSearchResult : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MultiEditSearchResult)
    Q_PROPERTY(int currentMatchIndex READ getCurrentMatchIndex NOTIFY currentMatchIndexChanged)
    Q_PROPERTY(int matchCount READ getMatchCount NOTIFY matchCountChanged)
    Q_PROPERTY(bool active READ getActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(QString report READ getReport NOTIFY reportChanged)

public:
    explicit MultiEditSearchResult(QObject* parent = nullptr);
    explicit MultiEditSearchResult(TableContentFilterModel* table, QObject* parent = nullptr);

    Q_INVOKABLE void SearchNext(QString const& text);
    bool getActive() const { return m_active; }
    void setActive(bool active);
    int getMatchCount() const { return static_cast<int>(m_matches.size()); }
    int getCurrentMatchIndex() const;
    QString getReport() const;

signals:
    void currentMatchIndexChanged();
    void matchCountChanged();
    void activeChanged();
    void reportChanged();

private:
    using Match = std::pair<int, int>; // row and column of the filtered table

    void Invalidate();
    void SelectNext();
    void OnSelectionMoved();

    QPointer<TableContentFilterModel> m_table;
    QString m_searchText;
    std::vector<Match> m_matches;
    mutable std::optional<int> m_currentMatchIndex;
    bool m_active = false;
    bool m_moving = false;
};

} // namespace Orvo::UI::UIComponents
