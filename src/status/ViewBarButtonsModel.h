#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// The view bar's buttons in their order: view presets, framing and display toggles, each with
// whether it is shown in the bar or went to the "more options" menu.
class ViewBarButtonsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Roles
    {
        ButtonIdRole = Qt::UserRole + 1,
        TitleRole,
        CheckableRole,
        CheckedRole,
        EnabledRole,
        PinnedRole,
        InBarRole,
    };
    Q_ENUM(Roles)

    struct Button
    {
        QString id;
        QString titleId;
        bool checkable = false;
        bool checked = false;
        bool enabled = true;
        bool pinned = false;
        bool inBar = true;
    };

    explicit ViewBarButtonsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<Button>& Buttons() const { return m_buttons; }
    int FindRow(const QString& buttonId) const;
    // Replaces the states of the buttons (same ids, same order); rows that changed report it.
    void Update(const std::vector<Button>& buttons);

private:
    std::vector<Button> m_buttons;
};

} // namespace Orvo::UI::UIComponents
