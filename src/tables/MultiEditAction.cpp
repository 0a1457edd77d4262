#include "MultiEditAction.h"

namespace Orvo::UI::UIComponents {

MultiEditAction::MultiEditAction(QObject* parent)
    : QObject(parent)
{ }

MultiEditAction::MultiEditAction(Action action, QChar const& symbol, QString const& lcid, QObject* parent)
    : QObject(parent)
    , m_action(action)
    , m_symbol(symbol)
    , m_lcid(lcid)
{ }

} // namespace Orvo::UI::UIComponents
