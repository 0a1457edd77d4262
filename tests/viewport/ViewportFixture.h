#pragma once

#include "TestHost.h"
#include "datamodel/Settings.h"
#include "graphic/GraphicsService.h"
#include "model/ModelGenerator.h"
#include "properties/StructuralModel.h"
#include "qtextensions/ViewInputArea.h"
#include "viewport/Viewport.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QtTest>
#include <memory>

// A window with a model view over a view input area (as the application lays them out: what
// the view does not take falls through to the area), on a small building.
class ViewportFixture
{
public:
    static constexpr QSize c_windowSize { 400, 300 };

    explicit ViewportFixture(int rendererType, QSize viewSize = c_windowSize)
    {
        using namespace Orvo;
        m_host.StartServices();
        auto catalog = Kernel::Framework::ServiceCatalog::Global();
        catalog->Get<UI::DataModel::Settings>()->SetValue(UI::DataModel::Settings::c_rendererType,
                                                          rendererType);
        Kernel::Model::BuildingOptions building;
        building.baysX = 2;
        building.baysY = 2;
        building.storeys = 2;
        Model()->Replace([&building](Kernel::Model::Structure& structure) {
            Kernel::Model::ModelGenerator::Building(structure, building);
        });
        // The scene follows the model from the event loop; the tests look at it at once.
        Graphics()->GetScene().EnsureCurrent();
        window = std::make_unique<QQuickWindow>();
        window->resize(c_windowSize);
        inputArea = new UI::QtExtensions::ViewInputArea(window->contentItem());
        inputArea->setSize(QSizeF(c_windowSize));
        viewport = new UI::UIComponents::Viewport(inputArea);
        viewport->setSize(QSizeF(viewSize));
        window->show();
        exposed = QTest::qWaitForWindowExposed(window.get());
    }

    ~ViewportFixture() { window.reset(); }

    bool IsOpenGLWindow() const
    {
        const auto api = window->rendererInterface()->graphicsApi();
        return api == QSGRendererInterface::OpenGL;
    }

    // Renders a frame now and returns it.
    QImage Frame() { return window->grabWindow(); }

    Orvo::Kernel::Framework::StructuralModel* Model() const
    {
        return Orvo::Kernel::Framework::ServiceCatalog::Global()
            ->Get<Orvo::Kernel::Framework::StructuralModel>()
            .get();
    }

    Orvo::Graphic::GraphicsService* Graphics() const
    {
        return Orvo::Kernel::Framework::ServiceCatalog::Global()->Get<Orvo::Graphic::GraphicsService>().get();
    }

    // Where a point of the model appears in the window.
    QPoint OnScreen(const QVector3D& scenePoint) const
    {
        return viewport->GetCamera().Project(scenePoint).position.toPoint();
    }

    TestHost m_host;
    bool exposed = false;
    std::unique_ptr<QQuickWindow> window;
    Orvo::UI::QtExtensions::ViewInputArea* inputArea = nullptr;
    Orvo::UI::UIComponents::Viewport* viewport = nullptr;
};
