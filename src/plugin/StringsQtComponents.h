#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// QML's view of the components' string table: Strings.text("UI_...") in every document.
class StringsQtComponents : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Strings)
    QML_SINGLETON

public:
    explicit StringsQtComponents(QObject* parent = nullptr);

    Q_INVOKABLE QString text(QString id) const;
};

} // namespace Orvo::UI::UIComponents
