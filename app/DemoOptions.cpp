#include "DemoOptions.h"

DemoOptions DemoOptions::Parse(const QStringList& arguments)
{
    DemoOptions options;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        auto takeValue = [&](QString& target) {
            if (i + 1 >= arguments.size()) {
                options.valid = false;
                options.error = QStringLiteral("%1 needs a value").arg(argument);
                return;
            }
            target = arguments.at(++i);
        };
        // A count from 1 to 5,000,000; what, for the message when it is not one.
        auto takeCount = [&](int& target, const char* what) {
            QString text;
            takeValue(text);
            bool ok = false;
            const int value = text.toInt(&ok);
            if (!ok || value < 1 || value > 5'000'000) {
                options.valid = false;
                options.error = QStringLiteral("%1 takes a number of %2 from 1 to 5000000")
                                    .arg(argument, QLatin1String(what));
            } else {
                target = value;
            }
        };
        if (argument == QLatin1String("--screenshot")) {
            takeValue(options.screenshotFile);
        } else if (argument == QLatin1String("--page")) {
            takeValue(options.page);
        } else if (argument == QLatin1String("--renderer")) {
            takeValue(options.renderer);
            if (options.renderer != QLatin1String("software")
                && options.renderer != QLatin1String("opengl")) {
                options.valid = false;
                options.error = QStringLiteral("--renderer takes software or opengl");
            }
        } else if (argument == QLatin1String("--run-command")) {
            takeValue(options.runCommand);
            if (!QStringList { QStringLiteral("new-node"), QStringLiteral("new-member"),
                               QStringLiteral("move") }
                     .contains(options.runCommand)) {
                options.valid = false;
                options.error = QStringLiteral("--run-command takes new-node, new-member or move");
            }
        } else if (argument == QLatin1String("--hold-marking-menu")) {
            options.holdMarkingMenu = true;
        } else if (argument == QLatin1String("--model-size")) {
            takeCount(options.modelSize, "members");
        } else if (argument == QLatin1String("--table-rows")) {
            takeCount(options.tableRows, "rows");
        } else if (argument == QLatin1String("--window-size")) {
            // WIDTHxHEIGHT, to look at the shell at a narrow or a wide window.
            QString size;
            takeValue(size);
            const QStringList parts = size.split(QLatin1Char('x'));
            const int width = parts.value(0).toInt();
            const int height = parts.value(1).toInt();
            if (parts.size() == 2 && width > 0 && height > 0) {
                options.windowSize = QSize(width, height);
            } else {
                options.valid = false;
                options.error = QStringLiteral("--window-size takes WIDTHxHEIGHT");
            }
        } else if (argument == QLatin1String("--delay")) {
            QString delay;
            takeValue(delay);
            bool ok = false;
            const int value = delay.toInt(&ok);
            if (ok && value >= 0)
                options.screenshotDelayMs = value;
        }
    }
    return options;
}
