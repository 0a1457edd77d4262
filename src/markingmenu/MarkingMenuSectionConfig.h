#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// One first-level section of the marking menu and the commands of its six slices. QML reads
// it; only MarkingMenuConfigXmlHandler writes it, and without change signals, since a
// configuration is complete before QML is given it.
class MarkingMenuSectionConfig : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MarkingMenuSectionConfig)
    Q_PROPERTY(bool sectionVisible READ sectionVisible NOTIFY sectionVisibleChanged)
    Q_PROPERTY(QString icon READ icon NOTIFY iconChanged)
    Q_PROPERTY(QString label READ label NOTIFY labelChanged)
    Q_PROPERTY(QString lcid READ lcid NOTIFY lcidChanged)
    Q_PROPERTY(QStringList commandUuids READ commandUuids NOTIFY commandUuidsChanged)

public:
    static constexpr int c_sliceCount = 6;

    explicit MarkingMenuSectionConfig(QObject* parent = nullptr);
    MarkingMenuSectionConfig(bool sectionVisible, QString icon, QString label, QString lcid,
                             QList<QString> commandUuids);

    bool sectionVisible() const;
    QString icon() const;
    QString label() const;
    QString lcid() const;
    // Index 0 is slice 1; an empty entry is an empty slice.
    const QList<QString>& commandUuids() const;

signals:
    void sectionVisibleChanged();
    void iconChanged();
    void labelChanged();
    void lcidChanged();
    void commandUuidsChanged();

private:
    friend class MarkingMenuConfigXmlHandler;

    bool m_sectionVisible = false;
    QString m_icon;
    QString m_label;
    QString m_lcid;
    QList<QString> m_commandUuids;
};

} // namespace Orvo::UI::UIComponents
