#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::UI::UIComponents {

// The model point under the pointer in one view (viewportId), as texts in the length unit the
// user chose. The view announces the point as the pointer moves; none while the pointer is off
// the model or outside the view.
class CoordinatesSubModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CoordinatesSubModel)
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(bool valid READ valid NOTIFY coordinatesChanged)
    Q_PROPERTY(QString xText READ xText NOTIFY coordinatesChanged)
    Q_PROPERTY(QString yText READ yText NOTIFY coordinatesChanged)
    Q_PROPERTY(QString zText READ zText NOTIFY coordinatesChanged)
    Q_PROPERTY(QString unit READ unit NOTIFY coordinatesChanged)

public:
    explicit CoordinatesSubModel(QObject* parent = nullptr);
    ~CoordinatesSubModel() override;

    int viewportId() const { return m_viewportId; }
    void setViewportId(int id);
    bool valid() const { return m_valid; }
    QString xText() const { return Text(m_x); }
    QString yText() const { return Text(m_y); }
    QString zText() const { return Text(m_z); }
    QString unit() const;

    // The point in metres, as the view announces it (also how a host without views feeds it).
    void SetPointer(bool valid, double x, double y, double z);

signals:
    void viewportIdChanged();
    void coordinatesChanged();

private:
    QString Text(double metres) const;

    std::shared_ptr<BasicComponents::DisplayUnits> m_units;
    int m_viewportId = -1;
    bool m_valid = false;
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    Kernel::Framework::EventConnection m_pointerConnection;
    Kernel::Framework::EventConnection m_unitsConnection;
};

} // namespace Orvo::UI::UIComponents
