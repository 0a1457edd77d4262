#pragma once

#include <QChar>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// One operator of the multi-edit box: its number, the symbol typed for it and its label's key.
class MultiEditAction : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MultiEditAction)
    Q_PROPERTY(int action READ getAction CONSTANT)
    Q_PROPERTY(QString symbol READ getSymbolText CONSTANT)
    Q_PROPERTY(QString lcid READ getLcid CONSTANT)

public:
    enum Action
    {
        Add = 0,
        Subtract = 1,
        Multiply = 2,
        Divide = 3,
        Round = 4,
        Replace = 5,
        Search = 6,
    };
    Q_ENUM(Action)

    explicit MultiEditAction(QObject* parent = nullptr);
    MultiEditAction(Action action, QChar const& symbol, QString const& lcid, QObject* parent = nullptr);

    int getAction() const { return m_action; }
    QChar getSymbol() const { return m_symbol; }
    QString getSymbolText() const { return m_symbol.isNull() ? QString() : QString(m_symbol); }
    QString getLcid() const { return m_lcid; }

private:
    Action m_action = Add;
    QChar m_symbol;
    QString m_lcid;
};

} // namespace Orvo::UI::UIComponents
