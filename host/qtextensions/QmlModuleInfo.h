#pragma once

#include "HostKitExport.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Orvo::UI::QtExtensions {

// What an engine can import, for about pages and diagnostics (the singleton QmlModuleInfo of
// Orvo.QtExtensions): how many types a module registers, as its type description lists them, and
// which modules a resource tree holds.
class HOSTKIT_EXPORT QmlModuleInfo : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QmlModuleInfo)
    QML_SINGLETON

public:
    explicit QmlModuleInfo(QStringList importPaths, QObject* parent = nullptr);
    // One per engine, reading that engine's import path.
    static QmlModuleInfo* create(QQmlEngine* engine, QJSEngine*);

    // The number of types (singletons included) that the module's type description, named by the
    // typeinfo line of its qmldir on the import path, exports; 0 when there is no description.
    Q_INVOKABLE int typeCount(const QString& uri) const;
    // The modules under a folder of the resource tree: "<folder>.<Sub>" for each sub-folder that
    // has a qmldir, sorted.
    Q_INVOKABLE QStringList resourceModules(const QString& folder) const;

private:
    QStringList m_importPaths;
};

} // namespace Orvo::UI::QtExtensions
