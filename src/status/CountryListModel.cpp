#include "CountryListModel.h"

#include <QCollator>
#include <algorithm>

namespace Orvo::UI::UIComponents {

namespace {

// Qt's table also holds groupings with codes of their own: the European Union, the eurozone, the
// United Nations and outlying Oceania are no country a standard belongs to.
bool IsGrouping(const QString& code)
{
    static const QStringList groupings { QStringLiteral("EU"), QStringLiteral("EZ"), QStringLiteral("UN"),
                                         QStringLiteral("QO") };
    return groupings.contains(code);
}

bool IsCountryCode(const QString& code)
{
    // Regions of the world have numeric codes ("419" for Latin America).
    return code.size() == 2 && code.at(0).isLetter() && code.at(1).isLetter() && !IsGrouping(code);
}

} // namespace

CountryListModel::CountryListModel(QObject* parent)
    : QAbstractListModel(parent)
{
    for (int value = QLocale::AnyTerritory + 1; value <= QLocale::LastTerritory; ++value) {
        const auto territory = QLocale::Territory(value);
        const QString code = QLocale::territoryToCode(territory);
        if (IsCountryCode(code))
            m_countries.push_back({ code, QLocale::territoryToString(territory), territory });
    }
    // The enumeration is ordered by Qt's identifiers and grows at its end with new Qt versions:
    // sort by the names the reader sees.
    QCollator collator { QLocale(QLocale::English) };
    std::stable_sort(m_countries.begin(), m_countries.end(), [&collator](const Country& a, const Country& b) {
        return collator.compare(a.name, b.name) < 0;
    });
}

int CountryListModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return int(m_countries.size());
}

QVariant CountryListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Country& country = m_countries[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return country.name;
    case CodeRole:
        return country.code;
    default:
        return {};
    }
}

QHash<int, QByteArray> CountryListModel::roleNames() const
{
    return { { CodeRole, "code" }, { NameRole, "name" } };
}

int CountryListModel::FindRow(const QString& code) const
{
    const QString upper = code.trimmed().toUpper();
    const auto found = std::find_if(m_countries.cbegin(), m_countries.cend(),
                                    [&upper](const Country& country) { return country.code == upper; });
    return found == m_countries.cend() ? -1 : int(found - m_countries.cbegin());
}

const CountryListModel::Country* CountryListModel::At(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return &m_countries[std::size_t(row)];
}

} // namespace Orvo::UI::UIComponents
