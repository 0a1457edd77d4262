#pragma once

#include "InputPanelContainerModel.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QSet>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The filter bar of the input panel: one item per kind of container (geometry, parameters,
// selection) that the user switches on and off. Kinds are kept once seen, with how many
// containers of the running command have them, so a kind switched off stays off for the next
// command that has it.
class FilterBarItemModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FilterBarItemModel)
    Q_PROPERTY(Orvo::UI::UIComponents::InputPanelContainerModel* containers READ containers WRITE
                   setContainers NOTIFY containersChanged)
    Q_PROPERTY(QStringList hiddenCategories READ hiddenCategories WRITE setHiddenCategories NOTIFY
                   hiddenCategoriesChanged)

public:
    enum Roles
    {
        CategoryRole = Qt::UserRole + 1,
        TitleRole,
        CheckedRole,
        ContainerCountRole,
    };
    Q_ENUM(Roles)

    explicit FilterBarItemModel(QObject* parent = nullptr);

    InputPanelContainerModel* containers() const { return m_containers; }
    void setContainers(InputPanelContainerModel* containers);
    QStringList hiddenCategories() const;
    void setHiddenCategories(const QStringList& categories);

    Q_INVOKABLE void setChecked(int row, bool checked);
    bool IsShown(const QString& category) const { return !m_hidden.contains(category); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void containersChanged();
    void hiddenCategoriesChanged();

private:
    void Recount();

    struct Item
    {
        QString category;
        int containerCount = 0;
    };
    std::vector<Item> m_items;
    QSet<QString> m_hidden;
    QPointer<InputPanelContainerModel> m_containers;
};

} // namespace Orvo::UI::UIComponents
