#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// The demo's stand-in for the application's command handlers: it listens for the commands the
// UI command processor runs and shows the last one, and lets the page lock command groups. When
// a file command needs a file name (Open, Save as), it asks the window, which prompts the user
// and runs the command again with the name; Report asks the shell to open the report preview.
class CommandActivity : public QObject
{
    Q_OBJECT
    // Described for QML tools (the pages read it through DemoShell); never created in QML.
    QML_ANONYMOUS
    Q_PROPERTY(QString lastCommandUuid READ lastCommandUuid NOTIFY commandRun)
    Q_PROPERTY(QString lastCommandName READ lastCommandName NOTIFY commandRun)
    Q_PROPERTY(QString lastCommandIcon READ lastCommandIcon NOTIFY commandRun)
    Q_PROPERTY(QString lastParameters READ lastParameters NOTIFY commandRun)
    Q_PROPERTY(QString lastOrigin READ lastOrigin NOTIFY commandRun)
    Q_PROPERTY(int runCount READ runCount NOTIFY commandRun)

public:
    explicit CommandActivity(QObject* parent = nullptr);

    QString lastCommandUuid() const { return m_lastCommandUuid; }
    QString lastCommandName() const { return m_lastCommandName; }
    QString lastCommandIcon() const { return m_lastCommandIcon; }
    QString lastParameters() const { return m_lastParameters; }
    QString lastOrigin() const { return m_lastOrigin; }
    int runCount() const { return m_runCount; }

    Q_INVOKABLE bool setGroupEnabled(const QString& group, bool enabled);
    // Run the file commands on the named file, as a menu's recent file does.
    Q_INVOKABLE bool openFile(const QString& path);
    Q_INVOKABLE bool saveFileAs(const QString& path);

signals:
    void commandRun();
    // A file command needs a file: save tells a save from an open.
    void fileNameNeeded(bool save, const QString& suggestedPath);
    // The Report command ran.
    void reportRequested();

private:
    QString m_lastCommandUuid;
    QString m_lastCommandName;
    QString m_lastCommandIcon;
    QString m_lastParameters;
    QString m_lastOrigin;
    int m_runCount = 0;
    Orvo::Kernel::Framework::EventConnection m_executedConnection;
    Orvo::Kernel::Framework::EventConnection m_fileNameConnection;
};
