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
        if (argument == QLatin1String("--screenshot")) {
            takeValue(options.screenshotFile);
        } else if (argument == QLatin1String("--page")) {
            takeValue(options.page);
        } else if (argument == QLatin1String("--hold-marking-menu")) {
            options.holdMarkingMenu = true;
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
