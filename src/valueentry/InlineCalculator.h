#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// Lets a numeric input accept an arithmetic expression: QML binds the text typed after a leading
// "=" to expression, and the object evaluates it at once with the host calculator. In multiple
// mode one expression holds several values (coordinates), split at the separators and at ";".
class InlineCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(InlineCalculator)
    Q_PROPERTY(
        bool multipleEnabled READ isMultipleEnabled WRITE setMultipleEnabled NOTIFY multipleEnabledChanged)
    Q_PROPERTY(QStringList separators READ getSeparators WRITE setSeparators NOTIFY separatorsChanged)
    Q_PROPERTY(QString expression READ getExpression WRITE setExpression NOTIFY expressionChanged)
    Q_PROPERTY(bool valid READ isValid NOTIFY validChanged)
    Q_PROPERTY(double result READ getResult NOTIFY resultChanged)
    Q_PROPERTY(QList<bool> multipleValids READ getMultipleValids NOTIFY multipleValidsChanged)
    Q_PROPERTY(QList<double> multipleResults READ getMultipleResults NOTIFY multipleResultsChanged)

public:
    explicit InlineCalculator(QObject* parent = nullptr);

    bool isMultipleEnabled() const { return m_multipleEnabled; }
    const QStringList& getSeparators() const { return m_separators; }
    const QString& getExpression() const { return m_expression; }
    bool isValid() const { return m_valid; }
    double getResult() const { return m_result; }
    const QList<bool>& getMultipleValids() const { return m_multipleValids; }
    const QList<double>& getMultipleResults() const { return m_multipleResults; }

    // The mode takes effect at the next change of the expression (or of the separators).
    void setMultipleEnabled(bool multipleEnabled);
    void setSeparators(const QStringList& separators);
    void setExpression(const QString& expression);
    void setValid(bool valid);
    // Compared with plain ==, so storing NaN again emits resultChanged again: an input sees every
    // evaluation of an invalid expression.
    void setResult(double result);
    void setMultipleValids(const QList<bool>& multipleValids);
    void setMultipleResults(const QList<double>& multipleResults);

    // The host's edit text of value (its decimal mark and edit precision).
    Q_INVOKABLE QString formatValue(double value) const;

    void EvaluateSingle();
    void EvaluateMultiple();

signals:
    void multipleEnabledChanged();
    void separatorsChanged();
    void expressionChanged();
    void validChanged();
    void resultChanged();
    void multipleValidsChanged();
    void multipleResultsChanged();

private slots:
    void onExpressionChanged();
    void onSeparatorsChanged();

private:
    bool m_multipleEnabled = false;
    QStringList m_separators;
    QString m_expression;
    bool m_valid = false;
    double m_result;
    QList<bool> m_multipleValids;
    QList<double> m_multipleResults;
};

} // namespace Orvo::UI::UIComponents
