#pragma once

#include "common/ComboBoxProxyModel.h"

namespace Orvo::UI::UIComponents {

// The countries that match what the user typed, by name ("Germ") or by code ("DE"). A country
// whose code is exactly the text comes first: whoever types a code means that country, not every
// name that starts with the same two letters.
class CountrySearchModel : public Orvo::UI::UIComponents::ComboBoxProxyModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit CountrySearchModel(QObject* parent = nullptr);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    bool IsCodeOfSearch(int sourceRow) const;
};

} // namespace Orvo::UI::UIComponents
