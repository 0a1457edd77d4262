#include "LoadObjectTypes.h"

#include "CommonProperties.h"
#include "StructuralObjectTypes.h"

#include <QRegularExpression>

namespace Orvo::Kernel::Framework {

namespace {

using namespace Model;
using namespace Categories;

PropertyDefinition NodalLoadValue(int component, const QString& nameId)
{
    return Quantity(QStringLiteral("nodalLoad.value%1").arg(component), nameId, c_loads,
                    component < 3 ? QStringLiteral("kN") : QStringLiteral("kNm"), 2)
        .WithRange(-1.0e7, 1.0e7)
        .WithRichTextName()
        .Bind(
            [component](const Structure& structure, std::size_t index) {
                return PropertyValue(structure.NodalLoads().At(index).values[std::size_t(component)]);
            },
            [component](Structure& structure, std::size_t index, const PropertyValue& value) {
                structure.NodalLoads().At(index).values[std::size_t(component)] = std::get<double>(value);
                return ModelMessage();
            });
}

} // namespace

ObjectType LoadObjectTypes::CreateLoadCase()
{
    ObjectType loadCase(ObjectKind::LoadCase, StructuralObjectTypes::c_loadCase);
    AddNumberAndName<LoadCase>(loadCase);
    loadCase.AddProperty(BindField(
        PropertyDefinition(QStringLiteral("loadCase.category"), PropertyType::List,
                           QStringLiteral("UI_PROP_ACTION_CATEGORY"))
            .WithCategory(c_analysis)
            .WithChoices({ QStringLiteral("UI_CHOICE_ACTION_PERMANENT"),
                           QStringLiteral("UI_CHOICE_ACTION_IMPOSED"),
                           QStringLiteral("UI_CHOICE_ACTION_SNOW"), QStringLiteral("UI_CHOICE_ACTION_WIND") })
            .WithDefault(std::int32_t { 0 }),
        &LoadCase::category));
    loadCase.AddProperty(
        BindField(PropertyDefinition(QStringLiteral("loadCase.selfWeight"), PropertyType::Bool,
                                     QStringLiteral("UI_PROP_SELF_WEIGHT"))
                      .WithCategory(c_analysis)
                      .WithDefault(false),
                  &LoadCase::selfWeight));
    loadCase.AddProperty(BindField(PropertyDefinition(QStringLiteral("display.color"), PropertyType::Color,
                                                      QStringLiteral("UI_PROP_COLOR"))
                                       .WithCategory(c_display)
                                       .WithDefault(QColor(0xb7, 0x79, 0x1f)),
                                   &LoadCase::color));
    return loadCase;
}

ObjectType LoadObjectTypes::CreateNodalLoad()
{
    ObjectType load(ObjectKind::NodalLoad, StructuralObjectTypes::c_nodalLoad);
    AddNumber<NodalLoad>(load);
    load.AddProperty(BindField(
        Reference(QStringLiteral("load.loadCase"), QStringLiteral("UI_OBJECT_LOAD_CASE"), c_general),
        &NodalLoad::loadCase));
    load.AddProperty(BindField(
        Reference(QStringLiteral("nodalLoad.node"), QStringLiteral("UI_PROP_NODE"), c_general).AsRequired(),
        &NodalLoad::node));
    const char* names[] = { "UI_PROP_FORCE_X",  "UI_PROP_FORCE_Y",  "UI_PROP_FORCE_Z",
                            "UI_PROP_MOMENT_X", "UI_PROP_MOMENT_Y", "UI_PROP_MOMENT_Z" };
    for (int component = 0; component < 6; ++component)
        load.AddProperty(NodalLoadValue(component, QString::fromLatin1(names[component])));
    return load;
}

ObjectType LoadObjectTypes::CreateMemberLoad()
{
    ObjectType load(ObjectKind::MemberLoad, StructuralObjectTypes::c_memberLoad);
    AddNumber<MemberLoad>(load);
    load.AddProperty(BindField(
        Reference(QStringLiteral("load.loadCase"), QStringLiteral("UI_OBJECT_LOAD_CASE"), c_general),
        &MemberLoad::loadCase));
    load.AddProperty(BindField(
        Reference(QStringLiteral("memberLoad.member"), QStringLiteral("UI_OBJECT_MEMBER"), c_general)
            .AsRequired(),
        &MemberLoad::member));
    load.AddProperty(BindField(PropertyDefinition(QStringLiteral("memberLoad.direction"), PropertyType::List,
                                                  QStringLiteral("UI_PROP_DIRECTION"))
                                   .WithCategory(c_loads)
                                   .WithChoices({ QStringLiteral("UI_CHOICE_DIRECTION_GLOBAL_X"),
                                                  QStringLiteral("UI_CHOICE_DIRECTION_GLOBAL_Y"),
                                                  QStringLiteral("UI_CHOICE_DIRECTION_GLOBAL_Z"),
                                                  QStringLiteral("UI_CHOICE_DIRECTION_LOCAL_Y"),
                                                  QStringLiteral("UI_CHOICE_DIRECTION_LOCAL_Z") })
                                   .WithDefault(std::int32_t(LoadDirection::GlobalZ)),
                               &MemberLoad::direction));
    load.AddProperty(
        BindField(Quantity(QStringLiteral("memberLoad.value"), QStringLiteral("UI_PROP_LINE_LOAD"), c_loads,
                           QStringLiteral("kN/m"), 2)
                      .WithRange(-1.0e6, 1.0e6)
                      .WithRichTextName(),
                  &MemberLoad::value));
    return load;
}

ObjectType LoadObjectTypes::CreateCombination()
{
    ObjectType combination(ObjectKind::Combination, StructuralObjectTypes::c_combination);
    AddNumberAndName<Combination>(combination);
    combination.AddProperty(
        PropertyDefinition(QStringLiteral("combination.definition"), PropertyType::String,
                           QStringLiteral("UI_PROP_COMBINATION"))
            .WithCategory(c_analysis)
            .Bind(
                [](const Structure& structure, std::size_t index) {
                    return PropertyValue(FormatCombination(structure.Combinations().At(index).factors));
                },
                [](Structure& structure, std::size_t index, const PropertyValue& value) {
                    auto factors = ParseCombination(std::get<QString>(value));
                    if (!factors)
                        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_COMBINATION_TEXT"));
                    structure.Combinations().At(index).factors = std::move(*factors);
                    return ModelMessage();
                }));
    return combination;
}

std::optional<std::vector<std::pair<Number, double>>> LoadObjectTypes::ParseCombination(const QString& text)
{
    static const QRegularExpression term(
        QStringLiteral("^\\s*(?:([-+]?\\d+(?:[.,]\\d+)?)\\s*[*×xX]\\s*)?LC\\s*(\\d+)\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    std::vector<std::pair<Number, double>> factors;
    for (const QString& part : text.split(QLatin1Char('+'))) {
        const auto match = term.match(part);
        if (!match.hasMatch())
            return std::nullopt;
        bool ok = true;
        const QString factorText = match.captured(1);
        const double factor = factorText.isEmpty()
            ? 1.0
            : QString(factorText).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
        const int loadCase = match.captured(2).toInt(&ok);
        if (!ok)
            return std::nullopt;
        factors.push_back({ Number(loadCase), factor });
    }
    return factors;
}

QString LoadObjectTypes::FormatCombination(const std::vector<std::pair<Number, double>>& factors)
{
    QStringList terms;
    for (const auto& [loadCase, factor] : factors)
        terms << QStringLiteral("%1×LC%2").arg(QString::number(factor, 'g', 6)).arg(loadCase);
    return terms.join(QStringLiteral(" + "));
}

} // namespace Orvo::Kernel::Framework
