#pragma once

#include <QAbstractListModel>
#include <QLocale>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// Every country the user can choose as the one whose design standards and units apply: its
// ISO 3166 two-letter code and its English name, ordered by name. The list is Qt's territory
// table, so that it is never kept twice.
class CountryListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Roles
    {
        CodeRole = Qt::UserRole + 1,
        NameRole,
    };
    Q_ENUM(Roles)

    struct Country
    {
        QString code;
        QString name;
        QLocale::Territory territory;
    };

    explicit CountryListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The row of a code, letter case aside; -1 for a code that is no country of the list.
    int FindRow(const QString& code) const;
    // The country of a row; null for a row that is not there.
    const Country* At(int row) const;

private:
    std::vector<Country> m_countries;
};

} // namespace Orvo::UI::UIComponents
