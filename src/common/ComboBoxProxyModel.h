#pragma once

#include "SearchableProxyModel.h"

namespace Orvo::UI::UIComponents {

// The list of a searchable combo box: the source model's items whose text (the role named by
// textRole) holds every word typed in searchText, best matches first: the text starting with
// what was typed, then texts with a word starting with it, then the rest, each in source order.
// With no search the source order is kept.
class ComboBoxProxyModel : public Orvo::UI::UIComponents::SearchableProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ComboBoxProxyModel)

public:
    explicit ComboBoxProxyModel(QObject* parent = nullptr);

    // Rows of this list and of the source; -1 for a row that is not there.
    Q_INVOKABLE int sourceRow(int row) const;
    Q_INVOKABLE int rowOfSource(int sourceRow) const;
    // The text of a row of this list; empty for a row that is not there.
    Q_INVOKABLE QString textAt(int row) const;
    // The first row whose text is the given one, accents and case aside; -1 when none is.
    Q_INVOKABLE int findText(const QString& text) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    // Filters and orders again.
    void Refilter() override;
};

} // namespace Orvo::UI::UIComponents
