#include "TutorialToolTipData.h"

#include "TutorialLogging.h"
#include "datamodel/Settings.h"
#include "framework/ServiceCatalog.h"
#include "framework/XMLHandler.h"
#include "kernel/Directories.h"
#include "plugin/QtComponentsText.h"

#include <stdexcept>

namespace Orvo::UI::UIComponents {

using DataModel::Settings;
using Kernel::Framework::XMLHandler;

namespace {

std::vector<TutorialToolTipData::Step> ReadDocument(const XMLHandler& document)
{
    const pugi::xml_node root = document.RootNode();
    if (!root || !XMLHandler::HasName(root, L"tutorial"))
        throw std::invalid_argument("The tutorial file has no <tutorial> element");
    std::vector<TutorialToolTipData::Step> steps;
    for (const pugi::xml_node& node : root.children()) {
        if (node.type() != pugi::node_element || !XMLHandler::HasName(node, L"step"))
            continue;
        const auto read = [&node](const wchar_t* name) {
            return QString::fromStdWString(XMLHandler::ReadAttribReq(node, name));
        };
        steps.push_back({ read(L"id"), read(L"target"), read(L"title"), read(L"text") });
    }
    return steps;
}

} // namespace

TutorialToolTipData::TutorialToolTipData(QObject* parent)
    : QObject(parent)
    , m_settings(Kernel::Framework::ServiceCatalog::Global()->Get<Settings>())
{
    const auto file
        = Kernel::Directories::GetDirectory(Kernel::Directories::DirectoryType::ApplicationDirectory)
        / "Configuration" / c_fileName;
    m_steps = CatchAtTutorialBoundary("Reading the tutorial steps", std::vector<Step>(),
                                      [&file] { return ReadSteps(file); });
}

TutorialToolTipData::~TutorialToolTipData() = default;

std::vector<TutorialToolTipData::Step> TutorialToolTipData::ReadSteps(const std::filesystem::path& file)
{
    XMLHandler document;
    if (!document.LoadFile(file))
        throw std::invalid_argument("Cannot read the tutorial file " + file.string());
    return ReadDocument(document);
}

std::vector<TutorialToolTipData::Step> TutorialToolTipData::ReadStepsFromString(const std::wstring& xml)
{
    XMLHandler document;
    if (!document.LoadString(xml))
        throw std::invalid_argument("The tutorial text is not XML");
    return ReadDocument(document);
}

void TutorialToolTipData::SetSteps(std::vector<Step> steps)
{
    Show(-1);
    m_steps = std::move(steps);
    emit stepsChanged();
}

QString TutorialToolTipData::targetName() const
{
    return running() ? m_steps[std::size_t(m_current)].target : QString();
}

QString TutorialToolTipData::title() const
{
    return running() ? GetText(m_steps[std::size_t(m_current)].titleId) : QString();
}

QString TutorialToolTipData::text() const
{
    return running() ? GetText(m_steps[std::size_t(m_current)].textId) : QString();
}

bool TutorialToolTipData::done() const
{
    return m_settings && m_settings->Value(Settings::c_tutorialDone).toBool();
}

QStringList TutorialToolTipData::Seen() const
{
    const QString seen = m_settings ? m_settings->Value(Settings::c_tutorialSeen).toString() : QString();
    return seen.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

bool TutorialToolTipData::start()
{
    if (running())
        return true;
    if (done() || m_steps.empty())
        return false;
    const QStringList seen = Seen();
    int first = 0;
    while (first < count() && seen.contains(m_steps[std::size_t(first)].id))
        ++first;
    // Everything seen, but never finished (the last step was left open): from the start.
    m_direction = 1;
    m_shownThisRun = false;
    Show(first < count() ? first : 0);
    return true;
}

void TutorialToolTipData::next()
{
    if (!running())
        return;
    m_direction = 1;
    if (isLast())
        Finish();
    else
        Show(m_current + 1);
}

void TutorialToolTipData::back()
{
    if (!running() || isFirst())
        return;
    m_direction = -1;
    Show(m_current - 1);
}

void TutorialToolTipData::skip()
{
    if (!running() && done())
        return;
    Finish();
}

void TutorialToolTipData::restart()
{
    if (m_settings) {
        m_settings->Reset(Settings::c_tutorialSeen);
        m_settings->Reset(Settings::c_tutorialDone);
    }
    emit doneChanged();
    Show(-1);
    start();
}

void TutorialToolTipData::pause()
{
    Show(-1);
}

void TutorialToolTipData::MarkSeen()
{
    if (!running())
        return;
    m_shownThisRun = true;
    QStringList seen = Seen();
    const QString id = m_steps[std::size_t(m_current)].id;
    if (m_settings && !seen.contains(id)) {
        seen << id;
        m_settings->SetValue(Settings::c_tutorialSeen, seen.join(QLatin1Char(',')));
    }
}

void TutorialToolTipData::PassOver()
{
    if (!running())
        return;
    const int following = m_current + m_direction;
    if (following >= 0 && following < count()) {
        Show(following);
        return;
    }
    if (following < 0) {
        // Nothing before the first step: go on forward from it.
        m_direction = 1;
        if (m_current + 1 < count()) {
            Show(m_current + 1);
            return;
        }
    }
    // Past the last step: finished, unless nothing could be shown at all.
    if (m_shownThisRun)
        Finish();
    else
        Show(-1);
}

void TutorialToolTipData::Finish()
{
    Show(-1);
    if (m_settings && !done()) {
        m_settings->SetValue(Settings::c_tutorialDone, true);
        emit doneChanged();
    }
}

void TutorialToolTipData::Show(int index)
{
    if (m_current == index)
        return;
    m_current = index;
    emit currentChanged();
}

} // namespace Orvo::UI::UIComponents
