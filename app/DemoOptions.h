#pragma once

#include <QString>
#include <QStringList>

// What the demo was asked to do on its command line.
struct DemoOptions
{
    QString screenshotFile; // empty: run interactively
    QString page; // the page to open first, by its name
    int screenshotDelayMs = 400;
    bool holdMarkingMenu = false; // play a secondary-button hold over the marking menu page's view
    bool valid = true;
    QString error;

    static DemoOptions Parse(const QStringList& arguments);
};
