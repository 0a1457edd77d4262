#pragma once

#include <QDoubleValidator>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// Validates real numbers written either in the user's locale or in the C locale (so "1.5" is fine
// also where the decimal mark is a comma), and optionally lets expressions ("=...") through.
//
// Its notifiers deliberately differ from the usual rule: bottomChanged, topChanged and
// decimalsChanged are emitted on every set, even without a change, and expressionAllowedChanged
// is never emitted, so bindings on expressionAllowed do not update.
class RealValidator : public QValidator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RealValidator)
    Q_PROPERTY(double bottom READ bottom WRITE setBottom NOTIFY bottomChanged)
    Q_PROPERTY(double top READ top WRITE setTop NOTIFY topChanged)
    Q_PROPERTY(QVariant decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)
    Q_PROPERTY(bool expressionAllowed READ expressionAllowed WRITE setExpressionAllowed NOTIFY
                   expressionAllowedChanged)

public:
    explicit RealValidator(QObject* parent = nullptr);

    double bottom() const { return m_localeValidator.bottom(); }
    double top() const { return m_localeValidator.top(); }
    // The decimal limit as an unsigned int.
    QVariant decimals() const;
    bool expressionAllowed() const { return m_expressionAllowed; }

    void setBottom(double bottom);
    void setTop(double top);
    // A value that is not an integer (undefined, text) switches the decimal limit off (1000).
    void setDecimals(const QVariant& value);
    void setExpressionAllowed(bool expressionAllowed);

    State validate(QString& input, int& pos) const override;
    Q_INVOKABLE bool acceptable(QString input) const;

signals:
    void bottomChanged();
    void topChanged();
    void decimalsChanged();
    void expressionAllowedChanged();

private:
    bool m_expressionAllowed = false;
    QDoubleValidator m_localeValidator;
    QDoubleValidator m_cLocaleValidator;
};

} // namespace Orvo::UI::UIComponents
