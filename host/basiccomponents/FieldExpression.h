#pragma once

#include "HostKitExport.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QString>

namespace Orvo::UI::BasicComponents {

// An expression typed into a numeric field, read in the field's unit by the host calculator (the
// creatable type FieldExpression of Orvo.QtExtensions): "30cm" in a millimetre field is 300,
// "5kN" there has no value but a message saying why. Evaluates at once whenever expression or
// unit changes.
class HOSTKIT_EXPORT FieldExpression : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FieldExpression)
    // The text after the field's "=".
    Q_PROPERTY(QString expression READ expression WRITE setExpression NOTIFY expressionChanged)
    // The field's unit symbol ("mm", "kN/m²"); empty for a plain number.
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY unitChanged)
    Q_PROPERTY(bool valid READ valid NOTIFY resultChanged)
    // In the field's unit; NaN unless valid.
    Q_PROPERTY(double value READ value NOTIFY resultChanged)
    // Why there is no value; empty when valid or when there is no expression.
    Q_PROPERTY(QString message READ message NOTIFY resultChanged)

public:
    explicit FieldExpression(QObject* parent = nullptr);

    QString expression() const { return m_expression; }
    void setExpression(const QString& expression);
    QString unit() const { return m_unit; }
    void setUnit(const QString& unit);
    bool valid() const { return m_valid; }
    double value() const { return m_value; }
    QString message() const { return m_message; }

signals:
    void expressionChanged();
    void unitChanged();
    void resultChanged();

private:
    void Evaluate();

    QString m_expression;
    QString m_unit;
    bool m_valid = false;
    double m_value;
    QString m_message;
};

} // namespace Orvo::UI::BasicComponents
