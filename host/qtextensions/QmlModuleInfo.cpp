#include "QmlModuleInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <QRegularExpression>

namespace Orvo::UI::QtExtensions {

namespace {

QString ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
}

// The type description a qmldir names ("typeinfo plugins.qmltypes"), relative to it.
QString TypeInfoFile(const QString& qmldirPath)
{
    const QString qmldir = ReadFile(qmldirPath);
    for (const QString& line : qmldir.split(QLatin1Char('\n'))) {
        const QStringList words = line.simplified().split(QLatin1Char(' '));
        if (words.size() == 2 && words.first() == QLatin1String("typeinfo"))
            return QFileInfo(qmldirPath).dir().filePath(words.last());
    }
    return {};
}

} // namespace

QmlModuleInfo::QmlModuleInfo(QStringList importPaths, QObject* parent)
    : QObject(parent)
    , m_importPaths(std::move(importPaths))
{ }

QmlModuleInfo* QmlModuleInfo::create(QQmlEngine* engine, QJSEngine*)
{
    return new QmlModuleInfo(engine ? engine->importPathList() : QStringList());
}

int QmlModuleInfo::typeCount(const QString& uri) const
{
    const QString relative
        = QString(uri).replace(QLatin1Char('.'), QLatin1Char('/')) + QStringLiteral("/qmldir");
    for (const QString& importPath : m_importPaths) {
        const QString qmldir = QDir(importPath).filePath(relative);
        if (!QFileInfo::exists(qmldir))
            continue;
        // Every registered type has one "exports" entry in its component's description.
        static const QRegularExpression exports(QStringLiteral("^\\s*exports:"),
                                                QRegularExpression::MultilineOption);
        int count = 0;
        for (auto match = exports.globalMatch(ReadFile(TypeInfoFile(qmldir))); match.hasNext(); match.next())
            ++count;
        return count;
    }
    return 0;
}

QStringList QmlModuleInfo::resourceModules(const QString& folder) const
{
    QStringList modules;
    const QDir root(QStringLiteral(":/") + folder);
    for (const QString& sub : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (QFileInfo::exists(root.filePath(sub + QStringLiteral("/qmldir"))))
            modules << folder + QLatin1Char('.') + sub;
    }
    return modules;
}

} // namespace Orvo::UI::QtExtensions
