// Starts the host services, runs a QML document that uses the installed module Qml.QtComponents,
// and checks what the process ended up with: the same text from QML and from C++ (one copy of the
// libraries), the project's libraries loaded from the install prefix and no file mapped from the
// directories named after it.
#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "kernel/PathText.h"
#include "plugin/QtComponentsText.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

int Fail(const QString& message)
{
    std::fprintf(stderr, "OutsideHost: %s\n", qPrintable(message));
    return 1;
}

QStringList MappedFiles()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QStringList files;
    if (!maps.open(QIODevice::ReadOnly))
        return files;
    for (const QByteArray& line : maps.readAll().split('\n')) {
        const int path = line.indexOf(" /");
        if (path >= 0)
            files.append(QString::fromLocal8Bit(line.mid(path + 1)));
    }
    files.removeDuplicates();
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3)
        return Fail(QStringLiteral("usage: OutsideHost DOCUMENT INSTALL_PREFIX [FORBIDDEN_DIRECTORY...]"));

    auto services = Orvo::Kernel::Framework::HostApplication::Start(
        Orvo::Kernel::Directories::ToPath(QStringLiteral(QTC_DATA_DIR)));
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(QTC_QML_IMPORT_DIR));
    QQmlComponent component(&engine, QUrl::fromLocalFile(arguments.at(1)));
    std::unique_ptr<QObject> root(component.create());
    if (!root)
        return Fail(component.errorString());

    if (!root->property("modelReady").toBool())
        return Fail(QStringLiteral("the document's TableContentModel is missing or not empty"));
    if (!root->property("basicModulesReady").toBool())
        return Fail(QStringLiteral("BasicComponents.Constants is not installed beside the module"));
    const QString id = root->property("textId").toString();
    const QString text = root->property("text").toString();
    if (text.isEmpty() || text == id)
        return Fail(
            QStringLiteral("Strings.text(\"%1\") gave \"%2\", not the catalogue's text").arg(id, text));
    if (text != Orvo::UI::UIComponents::GetText(id))
        return Fail(QStringLiteral("QML and C++ read different string tables: two copies of the libraries?"));

    const QStringList mapped = MappedFiles();
    const QString prefix = arguments.at(2) + QLatin1Char('/');
    const QStringList projectLibraries { QStringLiteral("/libOrvoHostKit.so"),
                                         QStringLiteral("/libQtComponentsCore.so"),
                                         QStringLiteral("/libQtComponentsPlugin.so") };
    for (const QString& library : projectLibraries) {
        const auto loaded = std::find_if(mapped.cbegin(), mapped.cend(),
                                         [&](const QString& file) { return file.contains(library); });
        if (loaded == mapped.cend())
            return Fail(QStringLiteral("%1 was not loaded").arg(library.mid(1)));
        if (!loaded->startsWith(prefix))
            return Fail(QStringLiteral("%1 was loaded from outside %2").arg(*loaded, prefix));
    }
    for (const QString& forbidden : arguments.mid(3)) {
        for (const QString& file : mapped) {
            if (file.startsWith(forbidden + QLatin1Char('/')))
                return Fail(QStringLiteral("%1 was loaded from %2").arg(file, forbidden));
        }
    }
    std::printf("OutsideHost: \"%s\" from the installed module\n", qPrintable(text));
    return 0;
}
