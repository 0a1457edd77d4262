#pragma once

#include "CommandActivity.h"
#include "ViewControls.h"
#include "analysis/AnalysisService.h"
#include "commands/HotkeyHandlerModel.h"

#include <QObject>
#include <QPointer>
#include <QQmlContext>
#include <QString>
#include <QtQml/qqmlregistration.h>

// What the demo's shell hands every page: the page to open first, the command activity, the
// model view's bar, the host's analysis and the application's shortcuts. One object the pages
// name (the singleton DemoShell), so that the tools that check them know every type they read.
class DemoShell : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(DemoShell)
    QML_SINGLETON
    Q_PROPERTY(QString initialPage READ initialPage CONSTANT)
    Q_PROPERTY(CommandActivity* commandActivity READ commandActivity CONSTANT)
    Q_PROPERTY(ViewControls* viewControls READ viewControls CONSTANT)
    Q_PROPERTY(Orvo::Kernel::Analysis::AnalysisService* analysis READ analysis CONSTANT)
    // The model the hotkey handler panel publishes in the shell's context when it loads; null
    // before that.
    Q_PROPERTY(Orvo::UI::UIComponents::HotkeyHandlerModel* hotkeyHandlerModel READ hotkeyHandlerModel NOTIFY
                   hotkeyHandlerModelChanged)

public:
    DemoShell(QString initialPage, CommandActivity* commandActivity, ViewControls* viewControls,
              Orvo::Kernel::Analysis::AnalysisService* analysis, QObject* parent = nullptr);

    QString initialPage() const { return m_initialPage; }
    CommandActivity* commandActivity() const { return m_commandActivity; }
    ViewControls* viewControls() const { return m_viewControls; }
    Orvo::Kernel::Analysis::AnalysisService* analysis() const { return m_analysis; }
    Orvo::UI::UIComponents::HotkeyHandlerModel* hotkeyHandlerModel() const;

    // The shell's context, where the hotkey handler publishes its model. Looks for the model at
    // once: call again once the panel has loaded to let the pages that read it before know.
    void SetShellContext(QQmlContext* context);

signals:
    void hotkeyHandlerModelChanged();

private:
    QString m_initialPage;
    CommandActivity* m_commandActivity;
    ViewControls* m_viewControls;
    Orvo::Kernel::Analysis::AnalysisService* m_analysis;
    QPointer<QQmlContext> m_shellContext;
    // Found on the first read after the panel published it.
    mutable QPointer<Orvo::UI::UIComponents::HotkeyHandlerModel> m_hotkeyHandlerModel;
};
