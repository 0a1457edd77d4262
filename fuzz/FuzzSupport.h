#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

namespace Fuzz {

// Warnings are the expected answer to most inputs: printing them would cost more than the code
// under test. A fatal message is a finding.
inline void QuietMessages(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "qFatal: %s\n", qPrintable(message));
        std::abort();
    }
}

// One application for the whole run; a GUI one where the code needs a clipboard or fonts.
inline void EnsureApplication(bool gui)
{
    // Never destroyed: it lives as long as the process, like an application's.
    static QCoreApplication* application = nullptr;
    if (application)
        return;
    qInstallMessageHandler(QuietMessages);
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = { name, nullptr };
    if (gui) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = new QGuiApplication(argc, argv);
    } else {
        application = new QCoreApplication(argc, argv);
    }
}

// A text from the input: UTF-8 most of the time (readable corpora), raw UTF-16 code units
// otherwise, so lone surrogates and non-characters come through too.
inline QString Text(FuzzedDataProvider& data, std::size_t maxBytes = 4096)
{
    const bool utf16 = data.ConsumeBool() && data.ConsumeBool();
    const std::string bytes = data.ConsumeRandomLengthString(maxBytes);
    if (!utf16)
        return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    QString text(qsizetype(bytes.size() / 2), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(char16_t(std::uint8_t(bytes[std::size_t(2 * i)])
                                 | std::uint8_t(bytes[std::size_t(2 * i + 1)]) << 8));
    return text;
}

inline QString RemainingText(FuzzedDataProvider& data)
{
    const std::string bytes = data.ConsumeRemainingBytesAsString();
    return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
}

// Fails the run with a message; libFuzzer saves the input.
#define FUZZ_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);              \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)

} // namespace Fuzz
