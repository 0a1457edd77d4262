#include "PathText.h"

namespace Orvo::Kernel::Directories {

std::filesystem::path ToPath(const QString& text)
{
    return std::filesystem::u8path(text.toUtf8().toStdString());
}

std::filesystem::path ToPath(const std::wstring& text)
{
    return ToPath(QString::fromStdWString(text));
}

QString ToQString(const std::filesystem::path& path)
{
    return QString::fromUtf8(path.u8string().c_str());
}

std::wstring ToWString(const std::filesystem::path& path)
{
    return ToQString(path).toStdWString();
}

} // namespace Orvo::Kernel::Directories
