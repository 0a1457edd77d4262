#pragma once

#include "SnapListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The status bar's object snaps: the list of snaps and their toggles by name, for the bar's
// buttons and their shortcuts.
class SnappingSubDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(SnappingSubDataModel)
    Q_PROPERTY(Orvo::UI::UIComponents::SnapListModel* snaps READ snaps CONSTANT)
    // How many snaps are on, for the bar's summary.
    Q_PROPERTY(int enabledCount READ enabledCount NOTIFY enabledCountChanged)

public:
    explicit SnappingSubDataModel(QObject* parent = nullptr);

    SnapListModel* snaps() const { return m_snaps; }
    int enabledCount() const;

    // Switches the snap on or off; false for a snap that does not exist.
    Q_INVOKABLE bool toggle(const QString& snapId);
    Q_INVOKABLE bool isEnabled(const QString& snapId) const;

signals:
    void enabledCountChanged();

private:
    SnapListModel* m_snaps;
};

} // namespace Orvo::UI::UIComponents
