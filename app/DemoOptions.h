#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

// What the demo was asked to do on its command line.
struct DemoOptions
{
    QString screenshotFile; // empty: run interactively
    QString page; // the page to open first, by its name
    int screenshotDelayMs = 400;
    int modelSize = 0; // members of the demo's building; 0: the default building
    int tableRows = 0; // generated members in the tables page's large table; 0: its default
    bool holdMarkingMenu = false; // play a secondary-button hold over the marking menu page's view
    QString renderer; // "software" or "opengl" for the model views; empty: the user's setting
    QSize windowSize; // invalid: the window's own size
    // A modelling command to start once the window is up ("new-node", "new-member", "move"),
    // so that a screenshot shows its input panel; empty: none.
    QString runCommand;
    bool valid = true;
    QString error;

    static DemoOptions Parse(const QStringList& arguments);
};
