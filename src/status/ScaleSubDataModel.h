#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Graphic {
class GraphicsService;
}

namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::UI::UIComponents {

// The scale of one view (viewportId): as a drawing scale ("1:250", a screen pixel taken as the
// 0.2646 mm of a 96 dpi display) and as the model length one pixel covers, in the length unit
// the user chose.
class ScaleSubDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ScaleSubDataModel)
    Q_PROPERTY(int viewportId READ viewportId WRITE setViewportId NOTIFY viewportIdChanged)
    Q_PROPERTY(double metresPerPixel READ metresPerPixel NOTIFY scaleChanged)
    Q_PROPERTY(QString scaleText READ scaleText NOTIFY scaleChanged)
    Q_PROPERTY(QString pixelText READ pixelText NOTIFY scaleChanged)

public:
    static constexpr double c_metresPerScreenPixel = 0.0254 / 96.0;

    explicit ScaleSubDataModel(QObject* parent = nullptr);
    ~ScaleSubDataModel() override;

    int viewportId() const { return m_viewportId; }
    void setViewportId(int id);
    double metresPerPixel() const { return m_metresPerPixel; }
    QString scaleText() const;
    QString pixelText() const;

    void SetMetresPerPixel(double metresPerPixel);

signals:
    void viewportIdChanged();
    void scaleChanged();

private:
    std::shared_ptr<Graphic::GraphicsService> m_graphics;
    std::shared_ptr<BasicComponents::DisplayUnits> m_units;
    int m_viewportId = -1;
    double m_metresPerPixel = 0.0;
    Kernel::Framework::EventConnection m_scaleConnection;
    Kernel::Framework::EventConnection m_unitsConnection;
};

} // namespace Orvo::UI::UIComponents
