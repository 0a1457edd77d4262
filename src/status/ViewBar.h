#pragma once

#include "MoreOptionsMenuModel.h"
#include "ViewBarButtonsModel.h"
#include "ViewBarUserConfiguration.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Graphic {
class GraphicsService;
class InteractiveViewport;
} // namespace Orvo::Graphic
namespace Orvo::Kernel::Analysis {
class AnalysisService;
}

namespace Orvo::UI::UIComponents {

// The native half of the view bar over a model view (viewportId): view presets and framing, and
// what the view shows (solids or lines, loads, supports, the deformed shape and the bending
// moments of the analysis). Where the bar is narrower than its buttons, the unpinned ones go,
// from the end, to the "more options" menu; pinned ones stay as long as any fit. Which buttons
// are pinned is the bar's user configuration.
class ViewBar : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ViewBar_Cpp)
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::ViewBarButtonsModel* buttons READ buttons CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MoreOptionsMenuModel* moreOptions READ moreOptions CONSTANT)
    Q_PROPERTY(
        Orvo::UI::UIComponents::ViewBarUserConfiguration* userConfiguration READ userConfiguration CONSTANT)
    // The width the buttons may take, and what one button and the "more options" button take.
    Q_PROPERTY(qreal availableWidth READ availableWidth WRITE setAvailableWidth NOTIFY layoutChanged)
    Q_PROPERTY(qreal buttonWidth READ buttonWidth WRITE setButtonWidth NOTIFY layoutChanged)
    Q_PROPERTY(qreal moreButtonWidth READ moreButtonWidth WRITE setMoreButtonWidth NOTIFY layoutChanged)

public:
    explicit ViewBar(QQuickItem* parent = nullptr);
    ~ViewBar() override;

    int viewportId() const { return m_viewportId; }
    void setViewportId(int id);
    ViewBarButtonsModel* buttons() const { return m_buttons; }
    MoreOptionsMenuModel* moreOptions() const { return m_moreOptions; }
    ViewBarUserConfiguration* userConfiguration() const { return m_configuration; }
    qreal availableWidth() const { return m_availableWidth; }
    void setAvailableWidth(qreal width);
    qreal buttonWidth() const { return m_buttonWidth; }
    void setButtonWidth(qreal width);
    qreal moreButtonWidth() const { return m_moreButtonWidth; }
    void setMoreButtonWidth(qreal width);

    // What a click on the button does: a preset or framing, or a display toggle.
    Q_INVOKABLE bool activate(const QString& buttonId);
    Q_INVOKABLE void setPinned(const QString& buttonId, bool pinned);
    // Turns a display toggle on or off whatever its state (the results step shows the results).
    Q_INVOKABLE bool setChecked(const QString& buttonId, bool checked);

    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;
    bool isPersistent() const override { return true; }

signals:
    void viewportIdChanged();
    void layoutChanged();

private:
    Graphic::InteractiveViewport* View() const;
    void Refresh();

    ViewBarButtonsModel* m_buttons;
    MoreOptionsMenuModel* m_moreOptions;
    ViewBarUserConfiguration* m_configuration;
    std::shared_ptr<Graphic::GraphicsService> m_graphics;
    std::shared_ptr<Kernel::Analysis::AnalysisService> m_analysis;
    int m_viewportId = -1;
    qreal m_availableWidth = 0.0;
    qreal m_buttonWidth = 84.0;
    qreal m_moreButtonWidth = 32.0;
};

} // namespace Orvo::UI::UIComponents
