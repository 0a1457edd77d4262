#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// What the properties panel remembers for its user between sessions: the folded categories,
// the basic or advanced mode, and whether the illustration is shown. The host stores it as
// the string ToString writes.
class PropertiesPanelUserConfiguration : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PropertiesPanelUserConfiguration)
    Q_PROPERTY(QStringList collapsedCategories READ collapsedCategories WRITE setCollapsedCategories NOTIFY
                   collapsedCategoriesChanged)
    Q_PROPERTY(bool inBasicMode READ inBasicMode WRITE setInBasicMode NOTIFY inBasicModeChanged)
    Q_PROPERTY(bool illustrationVisible READ illustrationVisible WRITE setIllustrationVisible NOTIFY
                   illustrationVisibleChanged)

public:
    explicit PropertiesPanelUserConfiguration(QObject* parent = nullptr);

    QStringList collapsedCategories() const { return m_collapsedCategories; }
    // Repeated names are kept once.
    void setCollapsedCategories(const QStringList& categories);
    bool inBasicMode() const { return m_inBasicMode; }
    void setInBasicMode(bool inBasicMode);
    bool illustrationVisible() const { return m_illustrationVisible; }
    void setIllustrationVisible(bool visible);

    // Reads what ToString wrote. An empty text gives the defaults. Text that is not such a
    // configuration is logged and gives the defaults too, and false; a field of the wrong kind
    // keeps its default.
    bool FromString(const QString& text);
    QString ToString() const;

signals:
    void collapsedCategoriesChanged();
    void inBasicModeChanged();
    void illustrationVisibleChanged();

private:
    void ResetToDefaults();

    QStringList m_collapsedCategories;
    bool m_inBasicMode = true;
    bool m_illustrationVisible = true;
};

} // namespace Orvo::UI::UIComponents
