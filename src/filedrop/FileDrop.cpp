#include "FileDrop.h"

#include "FileDropLogging.h"
#include "commands/IUICommandProcessor.h"
#include "commands/RecentFiles.h"
#include "document/ModelDocument.h"
#include "document/ModelDocumentEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "model/ModelFile.h"
#include "plugin/QtComponentsText.h"

#include <QFileInfo>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

namespace {

// The command processor's name for the drop (usage statistics).
const wchar_t* const c_origin = L"FileDrop";

QString Extension()
{
    return QLatin1Char('.') + Kernel::Model::ModelFile::c_extension;
}

} // namespace

FileDrop::FileDrop(QObject* parent)
    : QObject(parent)
{ }

QString FileDrop::FileToOpen(const QList<QUrl>& urls)
{
    for (const QUrl& url : urls) {
        // Only files on this computer: the host reads a path, not a download.
        if (!url.isLocalFile())
            continue;
        const QString path = url.toLocalFile();
        if (ModelDocument::CanOpen(path))
            return path;
    }
    return QString();
}

void FileDrop::enter(const QList<QUrl>& urls)
{
    const QString file = FileToOpen(urls);
    const QString message = file.isEmpty()
        ? GetText(QStringLiteral("UI_FILEDROP_UNSUPPORTED")).arg(Extension())
        : GetText(QStringLiteral("UI_FILEDROP_OPEN")).arg(QFileInfo(file).fileName());
    SetDrag(true, file, message);
}

void FileDrop::leave()
{
    SetDrag(false, QString(), QString());
}

bool FileDrop::drop(const QList<QUrl>& urls)
{
    return CatchAtFileDropBoundary("File drop", false, [&] { return Drop(urls); });
}

bool FileDrop::Drop(const QList<QUrl>& urls)
{
    leave();
    const QString file = FileToOpen(urls);
    if (file.isEmpty()) {
        Refuse(urls, GetText(QStringLiteral("UI_FILEDROP_UNSUPPORTED")).arg(Extension()));
        return false;
    }
    auto processor = ServiceCatalog::Global()->Get<IUICommandProcessor>();
    // Through the command, as the File menu opens a file: the recent files list it, and the
    // host's handler reports what became of it.
    if (!processor
        || !processor->ExecuteCommand(ModelDocument::c_openCommand,
                                      RecentFiles::c_fileParameter + file.toStdWString(), c_origin)) {
        Refuse({ QUrl::fromLocalFile(file) }, GetText(QStringLiteral("UI_FILEDROP_CANNOT_OPEN_NOW")));
        return false;
    }
    return true;
}

void FileDrop::Refuse(const QList<QUrl>& urls, const QString& message)
{
    qCInfo(lcFileDrop, "Drop refused: %s", qPrintable(message));
    emit refused(message);
    if (auto eventbus = ServiceCatalog::Global()->Get<EventBus>()) {
        const QString first = urls.isEmpty()  ? QString()
            : urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile()
                                              : urls.constFirst().toString();
        eventbus->Post(ModelFileFailedEvent { ModelFileOperation::Open, first, message });
    }
}

void FileDrop::SetDrag(bool active, const QString& fileToOpen, const QString& message)
{
    if (m_dragActive == active && m_fileToOpen == fileToOpen && m_message == message)
        return;
    m_dragActive = active;
    m_fileToOpen = fileToOpen;
    m_message = message;
    emit dragChanged();
}

} // namespace Orvo::UI::UIComponents
