#pragma once

#include <clocale>
#include <string>

// Puts the process into the classic "C" locale for the lifetime of the object, the locale a
// service or a CI job without LANG runs in. std::filesystem converts wide strings through it,
// so that is where a path that skips the host's UTF-8 conversion breaks on non-ASCII names.
class ClassicCLocale
{
public:
    ClassicCLocale()
        : m_previous(std::setlocale(LC_ALL, nullptr))
    {
        std::setlocale(LC_ALL, "C");
    }
    ~ClassicCLocale() { std::setlocale(LC_ALL, m_previous.c_str()); }

    ClassicCLocale(const ClassicCLocale&) = delete;
    ClassicCLocale& operator=(const ClassicCLocale&) = delete;

private:
    std::string m_previous;
};
