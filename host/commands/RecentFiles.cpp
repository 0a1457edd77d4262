#include "RecentFiles.h"

#include "events/CommandExecuted.h"
#include "events/RecentFilesChange.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"
#include "kernel/PathText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Orvo::Kernel::Framework {

namespace Directories = Kernel::Directories;

RecentFiles::RecentFiles(std::filesystem::path storage, const std::shared_ptr<EventBus>& eventbus)
    : m_storage(std::move(storage))
    , m_eventbus(eventbus)
{
    Read();
    if (eventbus) {
        m_executedConnection = eventbus->Subscribe<UI::Events::CommandExecuted>(
            [this](const UI::Events::CommandExecuted& event) {
                Add(FileOfParameters(event.GetParameterString()));
            });
    }
}

QString RecentFiles::FileOfParameters(const std::wstring& parameterString)
{
    // Parameters are "key=value" pairs separated by ';'; a file name may hold neither.
    const QString parameters = QString::fromStdWString(parameterString);
    const QString key = QString::fromWCharArray(c_fileParameter);
    for (const QString& pair : parameters.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString trimmed = pair.trimmed();
        if (trimmed.startsWith(key))
            return trimmed.mid(key.size()).trimmed();
    }
    return QString();
}

void RecentFiles::Add(const QString& file)
{
    if (file.isEmpty())
        return;
    const QString path = QDir::cleanPath(file);
    if (!m_files.isEmpty() && m_files.constFirst() == path)
        return;
    m_files.removeAll(path);
    m_files.prepend(path);
    while (m_files.size() > c_capacity)
        m_files.removeLast();
    Changed();
}

bool RecentFiles::Remove(const QString& file)
{
    if (m_files.removeAll(QDir::cleanPath(file)) == 0)
        return false;
    Changed();
    return true;
}

void RecentFiles::Clear()
{
    if (m_files.isEmpty())
        return;
    m_files.clear();
    Changed();
}

void RecentFiles::Read()
{
    QFile storage(Directories::ToQString(m_storage));
    if (!storage.exists())
        return;
    if (!storage.open(QIODevice::ReadOnly | QIODevice::Text)) {
        DebugOutput(QStringLiteral("Cannot read the recent files from %1").arg(storage.fileName()));
        return;
    }
    const QStringList lines
        = QString::fromUtf8(storage.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QString path = QDir::cleanPath(line.trimmed());
        if (!path.isEmpty() && !m_files.contains(path) && m_files.size() < c_capacity)
            m_files.append(path);
    }
}

void RecentFiles::Changed()
{
    if (!m_storage.empty()) {
        const QString fileName = Directories::ToQString(m_storage);
        QDir().mkpath(QFileInfo(fileName).absolutePath());
        // Written whole or not at all: a crash while saving keeps the previous list.
        QSaveFile storage(fileName);
        if (storage.open(QIODevice::WriteOnly | QIODevice::Text)) {
            storage.write(m_files.join(QLatin1Char('\n')).toUtf8());
            storage.write("\n");
            if (!storage.commit())
                DebugOutput(QStringLiteral("Cannot save the recent files to %1").arg(fileName));
        } else {
            DebugOutput(QStringLiteral("Cannot save the recent files to %1").arg(fileName));
        }
    }
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(UI::Events::RecentFilesChange());
}

} // namespace Orvo::Kernel::Framework
