#include "MultiEditActionSolver.h"

#include "TablesLogging.h"

namespace Orvo::UI::UIComponents {

MultiEditActionSolver::MultiEditActionSolver(QObject* parent)
    : QObject(parent)
{
    const struct
    {
        MultiEditAction::Action action;
        char symbol;
        const char* lcid;
    } actions[] = {
        { MultiEditAction::Add, '+', "UI_TABLE_MULTIPLE_EDITBOX_ADD" },
        { MultiEditAction::Subtract, '-', "UI_TABLE_MULTIPLE_EDITBOX_SUBTRACT" },
        { MultiEditAction::Multiply, '*', "UI_TABLE_MULTIPLE_EDITBOX_MULTIPLY" },
        { MultiEditAction::Divide, '/', "UI_TABLE_MULTIPLE_EDITBOX_DIVIDE" },
        { MultiEditAction::Round, '~', "UI_TABLE_MULTIPLE_EDITBOX_ROUND" },
        { MultiEditAction::Replace, '>', "UI_TABLE_MULTIPLE_EDITBOX_REPLACE" },
        { MultiEditAction::Search, '?', "UI_TABLE_MULTIPLE_EDITBOX_SEARCH" },
    };
    for (const auto& action : actions) {
        m_actions.push_back(std::make_unique<MultiEditAction>(action.action, QChar::fromLatin1(action.symbol),
                                                              QString::fromLatin1(action.lcid)));
        m_actionsLcids.append(m_actions.back()->getLcid());
    }
    connect(this, &MultiEditActionSolver::expressionChanged, this,
            &MultiEditActionSolver::onExpressionChanged);
}

MultiEditActionSolver::~MultiEditActionSolver() = default;

void MultiEditActionSolver::setExpression(const QString& expression)
{
    if (m_expression == expression)
        return;
    m_expression = expression;
    emit expressionChanged();
}

void MultiEditActionSolver::onExpressionChanged()
{
    // The first operator symbol anywhere in the text decides: "*-2" multiplies by -2.
    m_currentActionPosition = -1;
    MultiEditAction* action = nullptr;
    for (int position = 0; position < m_expression.size() && !action; ++position) {
        for (const auto& candidate : m_actions) {
            if (m_expression[position] == candidate->getSymbol()) {
                action = candidate.get();
                m_currentActionPosition = position;
                break;
            }
        }
    }
    setCurrentAction(action);
    if (!action) {
        setCurrentActionValue(QString());
        setCurrentActionValueIsNumber(false);
        setCurrentActionIsValid(false);
        return;
    }
    QString value = m_expression.mid(m_currentActionPosition + 1).trimmed();
    value.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    value.toDouble(&isNumber);
    setCurrentActionValue(value);
    setCurrentActionValueIsNumber(isNumber);
    const bool takesText
        = action->getAction() == MultiEditAction::Search || action->getAction() == MultiEditAction::Replace;
    setCurrentActionIsValid(!value.isEmpty() && (takesText || isNumber));
}

QString MultiEditActionSolver::getExpressionUpdatedByActionAt(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_actions.size())) {
        qCWarning(lcTables) << "getExpressionUpdatedByActionAt: no action" << index;
        return m_expression;
    }
    const QChar symbol = m_actions[static_cast<std::size_t>(index)]->getSymbol();
    if (!m_currentAction)
        return symbol + m_expression;
    QString expression = m_expression;
    expression.replace(m_currentAction->getSymbol(), symbol);
    return expression;
}

void MultiEditActionSolver::setCurrentAction(MultiEditAction* action)
{
    if (m_currentAction == action)
        return;
    m_currentAction = action;
    emit currentActionChanged();
}

void MultiEditActionSolver::setCurrentActionValue(const QString& value)
{
    if (m_currentActionValue == value)
        return;
    m_currentActionValue = value;
    emit currentActionValueChanged();
}

void MultiEditActionSolver::setCurrentActionValueIsNumber(bool isNumber)
{
    if (m_currentActionValueIsNumber == isNumber)
        return;
    m_currentActionValueIsNumber = isNumber;
    emit currentActionValueIsNumberChanged();
}

void MultiEditActionSolver::setCurrentActionIsValid(bool isValid)
{
    if (m_currentActionIsValid == isValid)
        return;
    m_currentActionIsValid = isValid;
    emit currentActionIsValidChanged();
}

} // namespace Orvo::UI::UIComponents
