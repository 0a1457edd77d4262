#pragma once

#include "HostKitExport.h"
#include "framework/EventConnection.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QString>

namespace Orvo::UI::BasicComponents {

// The host's number settings for QML (the singleton NumberFormat of Orvo.QtExtensions): the
// decimal mark a settings page lets the user choose, and the edit text of numbers as every field
// writes and reads it. changed() is emitted whenever the settings change, from wherever.
class HOSTKIT_EXPORT NumberFormat : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(NumberFormat)
    QML_SINGLETON
    Q_PROPERTY(bool decimalComma READ decimalComma WRITE setDecimalComma NOTIFY changed)
    Q_PROPERTY(QString decimalMark READ decimalMark NOTIFY changed)

public:
    explicit NumberFormat(QObject* parent = nullptr);

    bool decimalComma() const;
    void setDecimalComma(bool decimalComma);
    QString decimalMark() const;

    // The edit text of value with at most decimals decimals (the host's edit decimals when
    // negative); empty for a value that is not finite.
    Q_INVOKABLE QString toEditValue(double value, int decimals = -1) const;
    // The number typed in text with either decimal mark; NaN when the text is no number.
    Q_INVOKABLE double fromEditValue(const QString& text) const;

signals:
    void changed();

private:
    Kernel::Framework::EventConnection m_changeConnection;
};

} // namespace Orvo::UI::BasicComponents
