#include "ViewBar.h"

#include "StatusLogging.h"
#include "analysis/AnalysisService.h"
#include "framework/ServiceCatalog.h"
#include "graphic/GraphicsService.h"
#include "graphic/InteractiveViewport.h"

#include <cmath>

namespace Orvo::UI::UIComponents {

using Graphic::DisplayOptions;
using Graphic::ForceComponent;
using Graphic::ViewPreset;

ViewBar::ViewBar(QQuickItem* parent)
    : UIComponent(parent)
    , m_buttons(new ViewBarButtonsModel(this))
    , m_moreOptions(new MoreOptionsMenuModel(this))
    , m_configuration(new ViewBarUserConfiguration(this))
{
    connect(m_moreOptions, &MoreOptionsMenuModel::triggered, this, &ViewBar::activate);
    connect(m_configuration, &ViewBarUserConfiguration::pinnedButtonsChanged, this, &ViewBar::Refresh);
    if (const auto catalog = Kernel::Framework::ServiceCatalog::Global()) {
        m_graphics = catalog->Get<Graphic::GraphicsService>();
        m_analysis = catalog->Get<Kernel::Analysis::AnalysisService>();
    }
    if (m_analysis) {
        using Kernel::Analysis::AnalysisService;
        connect(m_analysis.get(), &AnalysisService::resultsChanged, this, &ViewBar::Refresh);
        connect(m_analysis.get(), &AnalysisService::resultsUpToDateChanged, this, &ViewBar::Refresh);
    }
    Refresh();
}

ViewBar::~ViewBar()
{
    if (m_analysis)
        m_analysis->disconnect(this);
}

void ViewBar::setViewportId(int id)
{
    if (m_viewportId == id)
        return;
    m_viewportId = id;
    Refresh();
    emit viewportIdChanged();
}

void ViewBar::setAvailableWidth(qreal width)
{
    if (!std::isfinite(width) || width < 0.0)
        width = 0.0;
    if (width == m_availableWidth)
        return;
    m_availableWidth = width;
    Refresh();
    emit layoutChanged();
}

void ViewBar::setButtonWidth(qreal width)
{
    if (!std::isfinite(width) || width <= 0.0 || width == m_buttonWidth)
        return;
    m_buttonWidth = width;
    Refresh();
    emit layoutChanged();
}

void ViewBar::setMoreButtonWidth(qreal width)
{
    if (!std::isfinite(width) || width < 0.0 || width == m_moreButtonWidth)
        return;
    m_moreButtonWidth = width;
    Refresh();
    emit layoutChanged();
}

Graphic::InteractiveViewport* ViewBar::View() const
{
    return m_graphics && m_viewportId != -1 ? m_graphics->FindViewport(m_viewportId) : nullptr;
}

bool ViewBar::activate(const QString& buttonId)
{
    Graphic::InteractiveViewport* view = View();
    const int row = m_buttons->FindRow(buttonId);
    if (row < 0) {
        qCWarning(lcStatus).noquote() << "activate: the view bar has no button" << buttonId;
        return false;
    }
    if (!view || !m_buttons->Buttons()[std::size_t(row)].enabled)
        return false;
    static const std::map<QString, ViewPreset> presets {
        { QStringLiteral("isometric"), ViewPreset::Isometric },
        { QStringLiteral("top"), ViewPreset::Top },
        { QStringLiteral("front"), ViewPreset::Front },
        { QStringLiteral("side"), ViewPreset::Right },
    };
    if (const auto preset = presets.find(buttonId); preset != presets.end()) {
        view->SetViewPreset(preset->second);
        view->FitAll();
        return true;
    }
    if (buttonId == QLatin1String("fit")) {
        view->FitAll();
        return true;
    }
    DisplayOptions options = view->GetDisplayOptions();
    if (buttonId == QLatin1String("solids"))
        options.extrudedSections = !options.extrudedSections;
    else if (buttonId == QLatin1String("loads"))
        options.loads = !options.loads;
    else if (buttonId == QLatin1String("supports"))
        options.supports = !options.supports;
    else if (buttonId == QLatin1String("deformed"))
        options.deformedShape = !options.deformedShape;
    else if (buttonId == QLatin1String("moments"))
        options.diagram
            = options.diagram == ForceComponent::MomentY ? ForceComponent::None : ForceComponent::MomentY;
    view->SetDisplayOptions(options);
    Refresh();
    return true;
}

bool ViewBar::setChecked(const QString& buttonId, bool checked)
{
    const int row = m_buttons->FindRow(buttonId);
    if (row >= 0 && m_buttons->Buttons()[std::size_t(row)].checkable
        && m_buttons->Buttons()[std::size_t(row)].checked == checked)
        return true;
    return activate(buttonId);
}

void ViewBar::setPinned(const QString& buttonId, bool pinned)
{
    if (m_buttons->FindRow(buttonId) < 0) {
        qCWarning(lcStatus).noquote() << "setPinned: the view bar has no button" << buttonId;
        return;
    }
    m_configuration->setPinned(buttonId, pinned);
}

void ViewBar::Refresh()
{
    const Graphic::InteractiveViewport* view = View();
    const DisplayOptions options = view ? view->GetDisplayOptions() : DisplayOptions();
    const bool results = m_analysis && m_analysis->hasResults() && m_analysis->resultsUpToDate();
    std::vector<ViewBarButtonsModel::Button> buttons = m_buttons->Buttons();

    // Every button when the bar is wide enough; else as many as fit beside the "more options"
    // button, pinned ones first, the others in their order.
    const qreal allWidth = qreal(buttons.size()) * m_buttonWidth;
    const bool allFit = m_availableWidth <= 0.0 || allWidth <= m_availableWidth;
    int places = allFit
        ? int(buttons.size())
        : std::max(0, int(std::floor((m_availableWidth - m_moreButtonWidth) / m_buttonWidth)));
    for (auto& button : buttons)
        button.pinned = m_configuration->isPinned(button.id);
    for (auto& button : buttons) {
        button.inBar = button.pinned && places > 0;
        places -= button.inBar ? 1 : 0;
    }
    for (auto& button : buttons) {
        if (!button.pinned) {
            button.inBar = places > 0;
            places -= button.inBar ? 1 : 0;
        }
    }

    QVariantList menu;
    for (auto& button : buttons) {
        button.enabled = view != nullptr;
        if (button.id == QLatin1String("solids"))
            button.checked = options.extrudedSections;
        else if (button.id == QLatin1String("loads"))
            button.checked = options.loads;
        else if (button.id == QLatin1String("supports"))
            button.checked = options.supports;
        else if (button.id == QLatin1String("deformed")) {
            button.checked = options.deformedShape;
            button.enabled = view && results;
        } else if (button.id == QLatin1String("moments")) {
            button.checked = options.diagram == ForceComponent::MomentY;
            button.enabled = view && results;
        }
    }
    m_buttons->Update(buttons);
    for (int row = 0; row < m_buttons->rowCount(); ++row) {
        const QModelIndex index = m_buttons->index(row);
        if (index.data(ViewBarButtonsModel::InBarRole).toBool())
            continue;
        menu.push_back(
            QVariantMap { { QStringLiteral("buttonId"), index.data(ViewBarButtonsModel::ButtonIdRole) },
                          { QStringLiteral("title"), index.data(ViewBarButtonsModel::TitleRole) },
                          { QStringLiteral("checkable"), index.data(ViewBarButtonsModel::CheckableRole) },
                          { QStringLiteral("checked"), index.data(ViewBarButtonsModel::CheckedRole) },
                          { QStringLiteral("enabled"), index.data(ViewBarButtonsModel::EnabledRole) },
                          { QStringLiteral("pinned"), index.data(ViewBarButtonsModel::PinnedRole) } });
    }
    m_moreOptions->SetItems(menu);
}

void ViewBar::loadConfiguration(const QString& userConfiguration)
{
    if (!userConfiguration.isEmpty())
        m_configuration->FromString(userConfiguration);
}

QString ViewBar::saveConfiguration()
{
    return m_configuration->ToString();
}

} // namespace Orvo::UI::UIComponents
