#include "IllustrationData.h"

#include "PropertiesLogging.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "qtextensions/File.h"

#include <filesystem>
#include <system_error>

namespace Orvo::UI::UIComponents {

namespace Directories = Kernel::Directories;

IllustrationData::IllustrationData(QObject* parent)
    : QObject(parent)
{ }

void IllustrationData::Show(const QString& title, const QString& relativePath, const QString& subject)
{
    if (relativePath.isEmpty()) {
        Clear();
        return;
    }
    const std::filesystem::path file
        = Directories::GetDirectory(Directories::DirectoryType::ApplicationDirectory)
        / Directories::ToPath(relativePath);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        qCWarning(lcProperties).noquote() << "Illustration" << Directories::ToQString(file) << "is missing";
        Clear();
        return;
    }
    Set(title, QtExtensions::File::createQmlFilePath(file), subject);
}

void IllustrationData::Clear()
{
    Set(QString(), QString(), QString());
}

void IllustrationData::Set(const QString& title, const QString& source, const QString& subject)
{
    const bool wasAvailable = isAvailable();
    if (m_title != title) {
        m_title = title;
        emit titleChanged();
    }
    if (m_subject != subject) {
        m_subject = subject;
        emit subjectChanged();
    }
    if (m_source != source) {
        m_source = source;
        emit sourceChanged();
    }
    if (wasAvailable != isAvailable())
        emit availableChanged();
}

} // namespace Orvo::UI::UIComponents
