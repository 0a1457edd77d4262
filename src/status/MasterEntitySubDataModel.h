#pragma once

#include "framework/EventConnection.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {
class StructuralModel;
}
namespace Orvo::Kernel::Model {
class ActiveEntities;
}
namespace Orvo::UI::BasicComponents {
class DisplayUnits;
}

namespace Orvo::UI::UIComponents {

// What new objects attach to, for the status bar: the work plane (one per storey level the
// model's nodes stand on) and the load case. The lists follow the model; a choice goes to the
// host's ActiveEntities.
class MasterEntitySubDataModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MasterEntitySubDataModel)
    Q_PROPERTY(QStringList workPlanes READ workPlanes NOTIFY entitiesChanged)
    Q_PROPERTY(int currentWorkPlane READ currentWorkPlane WRITE setCurrentWorkPlane NOTIFY entitiesChanged)
    Q_PROPERTY(QStringList loadCases READ loadCases NOTIFY entitiesChanged)
    Q_PROPERTY(int currentLoadCase READ currentLoadCase WRITE setCurrentLoadCase NOTIFY entitiesChanged)

public:
    explicit MasterEntitySubDataModel(QObject* parent = nullptr);
    ~MasterEntitySubDataModel() override;

    QStringList workPlanes() const;
    int currentWorkPlane() const;
    void setCurrentWorkPlane(int index);
    QStringList loadCases() const { return m_loadCaseNames; }
    int currentLoadCase() const;
    void setCurrentLoadCase(int index);

signals:
    void entitiesChanged();

private:
    void ReadModel();

    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    std::shared_ptr<Kernel::Model::ActiveEntities> m_active;
    std::shared_ptr<BasicComponents::DisplayUnits> m_units;
    std::vector<double> m_levels;
    std::vector<std::uint32_t> m_loadCaseNumbers;
    QStringList m_loadCaseNames;
    std::vector<Kernel::Framework::EventConnection> m_connections;
};

} // namespace Orvo::UI::UIComponents
