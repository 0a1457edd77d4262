#pragma once

#include <QObject>
#include <QPointF>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// What the user arranged in the input panel and finds again next time: the folded containers,
// the kinds switched off in the filter bar, and where the panel stands over the view (its top
// left corner; unplaced until the user moves it). Stored as the string ToString writes.
class InputPanelUserConfiguration : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(InputPanelUserConfiguration)
    Q_PROPERTY(QStringList foldedContainers READ foldedContainers WRITE setFoldedContainers NOTIFY
                   foldedContainersChanged)
    Q_PROPERTY(QStringList hiddenCategories READ hiddenCategories WRITE setHiddenCategories NOTIFY
                   hiddenCategoriesChanged)
    Q_PROPERTY(QPointF position READ position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(bool placed READ placed NOTIFY positionChanged)

public:
    explicit InputPanelUserConfiguration(QObject* parent = nullptr);

    QStringList foldedContainers() const { return m_foldedContainers; }
    // Kept sorted and once each, so that equal sets compare equal.
    void setFoldedContainers(const QStringList& containers);
    QStringList hiddenCategories() const { return m_hiddenCategories; }
    void setHiddenCategories(const QStringList& categories);
    QPointF position() const { return m_position; }
    // A position that is not finite is refused with a message.
    void setPosition(const QPointF& position);
    bool placed() const { return m_placed; }

    // Reads what ToString wrote. An empty text gives the defaults; text that is not such a
    // configuration is logged, gives the defaults too and false; a field of the wrong kind keeps
    // its default.
    bool FromString(const QString& text);
    QString ToString() const;

signals:
    void foldedContainersChanged();
    void hiddenCategoriesChanged();
    void positionChanged();

private:
    void SetPlacedPosition(const QPointF& position, bool placed);

    QStringList m_foldedContainers;
    QStringList m_hiddenCategories;
    QPointF m_position;
    bool m_placed = false;
};

} // namespace Orvo::UI::UIComponents
