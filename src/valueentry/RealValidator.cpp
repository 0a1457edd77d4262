#include "RealValidator.h"

#include "ExpressionEscape.h"

namespace Orvo::UI::UIComponents {

namespace {

constexpr int c_unlimitedDecimals = 1000;

} // namespace

RealValidator::RealValidator(QObject* parent)
    : QValidator(parent)
{
    m_cLocaleValidator.setLocale(QLocale::c());
}

QVariant RealValidator::decimals() const
{
    return QVariant::fromValue(static_cast<unsigned int>(m_localeValidator.decimals()));
}

void RealValidator::setBottom(double bottom)
{
    m_localeValidator.setBottom(bottom);
    m_cLocaleValidator.setBottom(bottom);
    emit bottomChanged();
}

void RealValidator::setTop(double top)
{
    m_localeValidator.setTop(top);
    m_cLocaleValidator.setTop(top);
    emit topChanged();
}

void RealValidator::setDecimals(const QVariant& value)
{
    bool ok = false;
    int decimals = value.toInt(&ok);
    if (!ok)
        decimals = c_unlimitedDecimals;
    m_localeValidator.setDecimals(decimals);
    m_cLocaleValidator.setDecimals(decimals);
    emit decimalsChanged();
}

void RealValidator::setExpressionAllowed(bool expressionAllowed)
{
    // No notification, on purpose: existing documents rely on the real validator staying silent.
    m_expressionAllowed = expressionAllowed;
}

QValidator::State RealValidator::validate(QString& input, int& pos) const
{
    if (const auto escaped = ValidateExpressionEscape(m_expressionAllowed, input))
        return *escaped;

    const State inLocale = m_localeValidator.validate(input, pos);
    const State inCLocale = m_cLocaleValidator.validate(input, pos);
    if (inLocale == Acceptable || inCLocale == Acceptable)
        return Acceptable;
    if (inLocale == Intermediate || inCLocale == Intermediate)
        return Intermediate;
    return Invalid;
}

bool RealValidator::acceptable(QString input) const
{
    int pos = 0;
    return validate(input, pos) == Acceptable;
}

} // namespace Orvo::UI::UIComponents
