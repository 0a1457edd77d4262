#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::UI::UIComponents {

// The status bar's units: the unit each quantity is shown in, switchable. Every field, table and
// the coordinates follow a switch (through the host's DisplayUnits, which owns the unit table).
class UnitsSubDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(UnitsSubDataModel)
    // One entry per quantity: { quantity, name, unit, choices }.
    Q_PROPERTY(QVariantList quantities READ quantities NOTIFY unitsChanged)
    Q_PROPERTY(QString lengthUnit READ lengthUnit NOTIFY unitsChanged)
    // The chosen units in one short text, for the bar's button ("m · kN · kNm · MPa").
    Q_PROPERTY(QString summary READ summary NOTIFY unitsChanged)

public:
    enum Quantity
    {
        Length,
        Force,
        Moment,
        Stress,
    };
    Q_ENUM(Quantity)

    explicit UnitsSubDataModel(QObject* parent = nullptr);
    ~UnitsSubDataModel() override;

    QVariantList quantities() const;
    QString lengthUnit() const;
    QString summary() const;

    // False for a quantity or a unit the host does not offer.
    Q_INVOKABLE bool setUnit(int quantity, const QString& unit);

signals:
    void unitsChanged();

private:
    std::shared_ptr<BasicComponents::DisplayUnits> m_units;
    Kernel::Framework::EventConnection m_unitsConnection;
};

} // namespace Orvo::UI::UIComponents
