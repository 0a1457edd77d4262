#include "MasterEntitySubDataModel.h"

#include "StatusLogging.h"
#include "basiccomponents/DisplayUnits.h"
#include "basiccomponents/NumberHelper.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "model/ActiveEntities.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <algorithm>
#include <cmath>

namespace Orvo::UI::UIComponents {

using BasicComponents::DisplayUnits;
using namespace Kernel;

namespace {

// Nodes within a millimetre of each other stand on one level.
constexpr double c_levelTolerance = 1e-3;

} // namespace

MasterEntitySubDataModel::MasterEntitySubDataModel(QObject* parent)
    : QObject(parent)
{
    const auto catalog = Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_model = catalog->Get<Framework::StructuralModel>();
    m_active = catalog->Get<Model::ActiveEntities>();
    m_units = catalog->Get<DisplayUnits>();
    if (const auto eventbus = catalog->Get<Framework::EventBus>()) {
        m_connections.push_back(eventbus->Subscribe<Framework::StructureChangedEvent>(
            [this](const Framework::StructureChangedEvent&) { ReadModel(); }));
        m_connections.push_back(eventbus->Subscribe<Framework::ObjectValuesChangedEvent>(
            [this](const Framework::ObjectValuesChangedEvent&) { ReadModel(); }));
        m_connections.push_back(eventbus->Subscribe<Model::ActiveEntitiesChangedEvent>(
            [this](const Model::ActiveEntitiesChangedEvent&) { emit entitiesChanged(); }));
        m_connections.push_back(eventbus->Subscribe<Events::DisplayUnitsChanged>(
            [this](const Events::DisplayUnitsChanged&) { emit entitiesChanged(); }));
    }
    ReadModel();
}

MasterEntitySubDataModel::~MasterEntitySubDataModel() = default;

void MasterEntitySubDataModel::ReadModel()
{
    std::vector<double> levels;
    std::vector<std::uint32_t> numbers;
    QStringList names;
    if (m_model) {
        const auto& structure = m_model->Structure();
        const auto& nodes = structure.Table<Model::Node>();
        for (std::size_t i = 0; i < nodes.Size(); ++i)
            levels.push_back(nodes.At(i).z);
        const auto& cases = structure.Table<Model::LoadCase>();
        for (std::size_t i = 0; i < cases.Size(); ++i) {
            const Model::LoadCase& loadCase = cases.At(i);
            numbers.push_back(loadCase.number);
            names << (loadCase.name.isEmpty()
                          ? GetText(QStringLiteral("UI_STATUSBAR_LOAD_CASE")).arg(loadCase.number)
                          : loadCase.name);
        }
    }
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end(),
                             [](double a, double b) { return std::abs(a - b) < c_levelTolerance; }),
                 levels.end());
    // The ground is a work plane even before anything stands on it.
    if (levels.empty())
        levels.push_back(0.0);
    if (levels == m_levels && numbers == m_loadCaseNumbers && names == m_loadCaseNames)
        return;
    m_levels = std::move(levels);
    m_loadCaseNumbers = std::move(numbers);
    m_loadCaseNames = std::move(names);
    emit entitiesChanged();
}

QStringList MasterEntitySubDataModel::workPlanes() const
{
    QStringList names;
    BasicComponents::NumberHelper helper;
    const auto shown = m_units ? m_units->ForStoredUnit(QStringLiteral("m"), 3)
                               : DisplayUnits::Shown { QStringLiteral("m"), 1.0, 3 };
    helper.setDecimals(shown.decimals);
    for (double level : m_levels)
        names << GetText(QStringLiteral("UI_STATUSBAR_WORK_PLANE"))
                     .arg(helper.toEditValue(shown.ToShown(level)), shown.unit);
    return names;
}

int MasterEntitySubDataModel::currentWorkPlane() const
{
    const double level = m_active ? m_active->GetWorkPlaneLevel() : 0.0;
    for (std::size_t i = 0; i < m_levels.size(); ++i) {
        if (std::abs(m_levels[i] - level) < c_levelTolerance)
            return int(i);
    }
    return -1;
}

void MasterEntitySubDataModel::setCurrentWorkPlane(int index)
{
    if (index < 0 || index >= int(m_levels.size()) || !m_active) {
        qCWarning(lcStatus) << "setCurrentWorkPlane: there is no work plane" << index;
        return;
    }
    m_active->SetWorkPlaneLevel(m_levels[std::size_t(index)]);
}

int MasterEntitySubDataModel::currentLoadCase() const
{
    if (m_loadCaseNumbers.empty())
        return -1;
    const auto number = m_active ? m_active->GetLoadCase() : 0;
    const auto it = std::find(m_loadCaseNumbers.begin(), m_loadCaseNumbers.end(), number);
    // None chosen (or the chosen one deleted): the first, as the views show it.
    return it == m_loadCaseNumbers.end() ? 0 : int(it - m_loadCaseNumbers.begin());
}

void MasterEntitySubDataModel::setCurrentLoadCase(int index)
{
    if (index < 0 || index >= int(m_loadCaseNumbers.size()) || !m_active) {
        qCWarning(lcStatus) << "setCurrentLoadCase: there is no load case" << index;
        return;
    }
    m_active->SetLoadCase(m_loadCaseNumbers[std::size_t(index)]);
}

} // namespace Orvo::UI::UIComponents
