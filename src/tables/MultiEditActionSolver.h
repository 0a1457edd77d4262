#pragma once

#include "MultiEditAction.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::UI::UIComponents {

// Reads the multi-edit box's expression as the user types ("+5", "*-2", ">Steel", "?IPE"): which
// operator it names, with which value, and whether it can be applied.
class MultiEditActionSolver : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MultiEditActionSolver)
    Q_PROPERTY(QString expression READ getExpression WRITE setExpression NOTIFY expressionChanged)
    Q_PROPERTY(QStringList actionsLcids READ getActionsLcids CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MultiEditAction* currentAction READ getCurrentAction NOTIFY
                   currentActionChanged)
    Q_PROPERTY(QString currentActionValue READ getCurrentActionValue NOTIFY currentActionValueChanged)
    Q_PROPERTY(bool currentActionValueIsNumber READ getCurrentActionValueIsNumber NOTIFY
                   currentActionValueIsNumberChanged)
    Q_PROPERTY(bool currentActionIsValid READ getCurrentActionIsValid NOTIFY currentActionIsValidChanged)

public:
    explicit MultiEditActionSolver(QObject* parent = nullptr);
    ~MultiEditActionSolver() override;

    QString getExpression() const { return m_expression; }
    void setExpression(const QString& expression);
    QStringList getActionsLcids() const { return m_actionsLcids; }
    MultiEditAction* getCurrentAction() const { return m_currentAction; }
    int getCurrentActionPosition() const { return m_currentActionPosition; }
    QString getCurrentActionValue() const { return m_currentActionValue; }
    bool getCurrentActionValueIsNumber() const { return m_currentActionValueIsNumber; }
    bool getCurrentActionIsValid() const { return m_currentActionIsValid; }

    Q_INVOKABLE QString getExpressionUpdatedByActionAt(int index) const;

signals:
    void expressionChanged();
    void currentActionChanged();
    void currentActionValueChanged();
    void currentActionValueIsNumberChanged();
    void currentActionIsValidChanged();

private slots:
    void onExpressionChanged();

private:
    void setCurrentAction(MultiEditAction* action);
    void setCurrentActionValue(const QString& value);
    void setCurrentActionValueIsNumber(bool isNumber);
    void setCurrentActionIsValid(bool isValid);

    std::vector<std::unique_ptr<MultiEditAction>> m_actions;
    QStringList m_actionsLcids;
    QString m_expression;
    int m_currentActionPosition = -1;
    MultiEditAction* m_currentAction = nullptr;
    QString m_currentActionValue;
    bool m_currentActionValueIsNumber = false;
    bool m_currentActionIsValid = false;
};

} // namespace Orvo::UI::UIComponents
