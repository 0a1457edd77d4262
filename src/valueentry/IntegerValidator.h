#pragma once

#include <QIntValidator>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// Qt's integer validation (bottom, top) that optionally lets expressions ("=...") through to the
// inline calculator.
class IntegerValidator : public QIntValidator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(IntegerValidator)
    Q_PROPERTY(bool expressionAllowed READ expressionAllowed WRITE setExpressionAllowed NOTIFY
                   expressionAllowedChanged)

public:
    explicit IntegerValidator(QObject* parent = nullptr);

    bool expressionAllowed() const { return m_expressionAllowed; }
    void setExpressionAllowed(bool expressionAllowed);

    State validate(QString& input, int& pos) const override;
    Q_INVOKABLE bool acceptable(QString input) const;

signals:
    void expressionAllowedChanged();

private:
    bool m_expressionAllowed = false;
};

} // namespace Orvo::UI::UIComponents
