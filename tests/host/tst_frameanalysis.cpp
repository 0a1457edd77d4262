#include "TestHost.h"
#include "analysis/FrameAnalysis.h"
#include "framework/IStringLoader.h"
#include "model/ModelGenerator.h"
#include "model/SectionProperties.h"

#include <QRegularExpression>
#include <QTest>
#include <cmath>

using namespace Orvo::Kernel::Analysis;
using namespace Orvo::Kernel::Model;

Q_DECLARE_METATYPE(Vector3)
Q_DECLARE_METATYPE(Vector6)

namespace {

constexpr double c_elasticModulus = 210000.0; // MPa
constexpr double c_kiloNewtonsPerSquareMetre = 1e3; // per MPa

// A rectangle 400 mm high and 200 mm wide: Iy = 1.0667e-3 m⁴, Iz = 2.6667e-4 m⁴.
CrossSection Rectangle()
{
    CrossSection section;
    section.shape = SectionShape::Rectangle;
    section.height = 400.0;
    section.width = 200.0;
    return section;
}

double Stiffness(double SectionProperties::*inertia)
{
    return c_elasticModulus * c_kiloNewtonsPerSquareMetre * (SectionProperties::Of(Rectangle()).*inertia)
        * 1e-12;
}

// One steel member between two nodes, a rectangle section, one load case without self-weight.
Structure Beam(const Vector3& start, const Vector3& end, double rotation = 0.0)
{
    Structure structure;
    structure.Sections().Append(Rectangle());
    Material steel;
    steel.elasticModulus = c_elasticModulus;
    structure.Materials().Append(steel);
    structure.LoadCases().Append(LoadCase {});
    structure.Nodes().Append({ 0, start[0], start[1], start[2], {} });
    structure.Nodes().Append({ 0, end[0], end[1], end[2], {} });
    Member member;
    member.startNode = 1;
    member.endNode = 2;
    member.section = 1;
    member.material = 1;
    member.rotation = rotation;
    structure.Members().Append(member);
    return structure;
}

void AddSupport(Structure& structure, Number node, DofMask fixed)
{
    Support support;
    support.node = node;
    support.fixed = fixed;
    structure.Supports().Append(support);
}

void AddNodalLoad(Structure& structure, Number loadCase, Number node, const Vector6& values)
{
    structure.NodalLoads().Append({ 0, loadCase, node, values });
}

void AddLineLoad(Structure& structure, Number loadCase, Number member, LoadDirection direction, double value)
{
    structure.MemberLoads().Append({ 0, loadCase, member, direction, value });
}

AnalysisOutcome Analyse(const Structure& structure)
{
    AnalysisOutcome outcome = FrameAnalysis::Run(structure);
    if (!outcome.succeeded)
        qWarning() << "Analysis failed:" << outcome.why.ToText(nullptr);
    return outcome;
}

bool Near(double actual, double expected, double scale)
{
    return std::abs(actual - expected) <= 1e-9 * std::abs(scale);
}

#define QCOMPARE_NEAR(actual, expected, scale)                                                               \
    QVERIFY2(Near(actual, expected, scale),                                                                  \
             qPrintable(QStringLiteral("%1 is %2, expected %3")                                              \
                            .arg(#actual)                                                                    \
                            .arg(actual, 0, 'g', 15)                                                         \
                            .arg(expected, 0, 'g', 15)))

} // namespace

// The analysis checked against results worked out by hand, to a relative error of 1e-9.
class tst_FrameAnalysis : public QObject
{
    Q_OBJECT

private slots:
    void cantileverTipDeflection_data();
    void cantileverTipDeflection();
    void beamUnderUniformLoad_data();
    void beamUnderUniformLoad();
    void portalFrameReactionsBalanceTheLoads();
    void combinationsAreSumsOfTheirLoadCases();
    void unstableModelsAreRefused_data();
    void unstableModelsAreRefused();
    void stoppedAnalysisGivesNoResults();
};

void tst_FrameAnalysis::cantileverTipDeflection_data()
{
    QTest::addColumn<Vector3>("tip");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<Vector3>("load"); // at the tip, kN
    QTest::addColumn<double>("flexibility"); // deflection per kN along the load: L³/3EI or L/EA

    const double l = 4.0;
    const double bendingY = l * l * l / (3 * Stiffness(&SectionProperties::iy));
    const double bendingZ = l * l * l / (3 * Stiffness(&SectionProperties::iz));
    QTest::newRow("along x, load down: strong axis")
        << Vector3 { l, 0, 0 } << 0.0 << Vector3 { 0, 0, -10 } << bendingY;
    QTest::newRow("along x, load sideways: weak axis")
        << Vector3 { l, 0, 0 } << 0.0 << Vector3 { 0, 10, 0 } << bendingZ;
    QTest::newRow("along y, load down") << Vector3 { 0, l, 0 } << 0.0 << Vector3 { 0, 0, -10 } << bendingY;
    QTest::newRow("turned a quarter, load down: weak axis")
        << Vector3 { l, 0, 0 } << 90.0 << Vector3 { 0, 0, -10 } << bendingZ;
    QTest::newRow("vertical, load along x: strong axis")
        << Vector3 { 0, 0, l } << 0.0 << Vector3 { 10, 0, 0 } << bendingY;
    QTest::newRow("vertical, load along y: weak axis")
        << Vector3 { 0, 0, l } << 0.0 << Vector3 { 0, 10, 0 } << bendingZ;
    // 3-4-5 triangle in x-z: a length of 5 and a load square to the member, in its plane.
    const double inclined = 125.0 / (3 * Stiffness(&SectionProperties::iy));
    QTest::newRow("inclined, load square to it")
        << Vector3 { 3, 0, 4 } << 0.0 << Vector3 { 8, 0, -6 } << inclined;
    const double axial = l / (c_elasticModulus * c_kiloNewtonsPerSquareMetre * 200 * 400 * 1e-6);
    QTest::newRow("along x, pulled") << Vector3 { l, 0, 0 } << 0.0 << Vector3 { 10, 0, 0 } << axial;
}

void tst_FrameAnalysis::cantileverTipDeflection()
{
    QFETCH(Vector3, tip);
    QFETCH(double, rotation);
    QFETCH(Vector3, load);
    QFETCH(double, flexibility);
    Structure structure = Beam({ 0, 0, 0 }, tip, rotation);
    AddSupport(structure, 1, c_allDofs);
    AddNodalLoad(structure, 1, 2, { load[0], load[1], load[2], 0, 0, 0 });

    const AnalysisOutcome outcome = Analyse(structure);

    QVERIFY(outcome.succeeded);
    const Vector6 displacement = outcome.results->NodeDisplacement(0, 1);
    const double scale = flexibility * std::hypot(load[0], load[1], load[2]);
    for (std::size_t i = 0; i < 3; ++i)
        QCOMPARE_NEAR(displacement[i], flexibility * load[i], scale);
    const Vector6 reaction = outcome.results->Reaction(0, 0);
    for (std::size_t i = 0; i < 3; ++i)
        QCOMPARE_NEAR(reaction[i], -load[i], 10.0);
    QCOMPARE(outcome.results->DegreesOfFreedom(), 6);
}

void tst_FrameAnalysis::beamUnderUniformLoad_data()
{
    QTest::addColumn<DofMask>("startSupport");
    QTest::addColumn<DofMask>("endSupport");
    QTest::addColumn<DofMask>("releases"); // at both ends
    QTest::addColumn<double>("endMoment"); // My at the start, per qL²
    QTest::addColumn<double>("midspanMoment"); // per qL²
    QTest::addColumn<double>("midspanDeflection"); // per qL⁴/EI

    // Section forces are those of the part beyond on the part before, z up: sagging is negative.
    const DofMask pinned = c_translations | Dof(3);
    const DofMask roller = Dof(1) | Dof(2);
    QTest::newRow("simply supported") << pinned << roller << DofMask(0) << 0.0 << -1.0 / 8 << 5.0 / 384;
    QTest::newRow("clamped at both ends")
        << c_allDofs << c_allDofs << DofMask(0) << 1.0 / 12 << -1.0 / 24 << 1.0 / 384;
    QTest::newRow("clamped supports, hinged member ends")
        << c_allDofs << c_allDofs << DofMask(Dof(4) | Dof(5)) << 0.0 << -1.0 / 8 << 5.0 / 384;
}

void tst_FrameAnalysis::beamUnderUniformLoad()
{
    QFETCH(DofMask, startSupport);
    QFETCH(DofMask, endSupport);
    QFETCH(DofMask, releases);
    QFETCH(double, endMoment);
    QFETCH(double, midspanMoment);
    QFETCH(double, midspanDeflection);
    const double l = 6.0;
    const double q = 12.0; // kN/m, downwards
    // Two members, so that the middle is a node whose deflection the analysis gives.
    Structure structure = Beam({ 0, 0, 0 }, { l / 2, 0, 0 });
    structure.Nodes().Append({ 0, l, 0, 0, {} });
    Member second = structure.Members().At(0);
    second.startNode = 2;
    second.endNode = 3;
    structure.Members().Append(second);
    structure.Members().At(0).startReleases = releases;
    structure.Members().At(1).endReleases = releases;
    AddSupport(structure, 1, startSupport);
    AddSupport(structure, 3, endSupport);
    AddLineLoad(structure, 1, 1, LoadDirection::GlobalZ, -q);
    AddLineLoad(structure, 1, 2, LoadDirection::GlobalZ, -q);

    const AnalysisOutcome outcome = Analyse(structure);

    QVERIFY(outcome.succeeded);
    const double moment = q * l * l;
    QCOMPARE_NEAR(outcome.results->SectionForces(0, 0, 0.0)[4], endMoment * moment, moment);
    QCOMPARE_NEAR(outcome.results->SectionForces(0, 0, l / 2)[4], midspanMoment * moment, moment);
    QCOMPARE_NEAR(outcome.results->SectionForces(0, 1, 0.0)[4], midspanMoment * moment, moment);
    QCOMPARE_NEAR(outcome.results->SectionForces(0, 0, l / 2)[2], 0.0, q * l);
    QCOMPARE_NEAR(outcome.results->SectionForces(0, 0, 0.0)[2], -q * l / 2, q * l);
    const double deflection = q * l * l * l * l / Stiffness(&SectionProperties::iy);
    QCOMPARE_NEAR(outcome.results->NodeDisplacement(0, 1)[2], -midspanDeflection * deflection, deflection);
    QCOMPARE_NEAR(outcome.results->Reaction(0, 0)[2], q * l / 2, q * l);
    QCOMPARE_NEAR(outcome.results->Reaction(0, 1)[2], q * l / 2, q * l);
}

void tst_FrameAnalysis::portalFrameReactionsBalanceTheLoads()
{
    Structure structure;
    ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
    AddNodalLoad(structure, 2, 4, { 3.0, -2.0, -40.0, 0, 0, 0 });

    const AnalysisOutcome outcome = Analyse(structure);

    QVERIFY(outcome.succeeded);
    const AnalysisResults& results = *outcome.results;
    QCOMPARE(results.Sets().size(), structure.LoadCases().Size() + structure.Combinations().Size());
    for (std::size_t set = 0; set < results.Sets().size(); ++set) {
        const Vector3 load = results.TotalLoad(set);
        QVERIFY(std::hypot(load[0], load[1], load[2]) > 1.0);
        Vector3 reactions {};
        for (std::size_t support = 0; support < structure.Supports().Size(); ++support) {
            const Vector6 reaction = results.Reaction(set, support);
            for (std::size_t i = 0; i < 3; ++i)
                reactions[i] += reaction[i];
        }
        const double scale = std::hypot(load[0], load[1], load[2]);
        for (std::size_t i = 0; i < 3; ++i)
            QCOMPARE_NEAR(reactions[i], -load[i], scale);
    }
    // The dead load is symmetric: the outer feet push apart equally.
    QCOMPARE_NEAR(results.Reaction(0, 0)[0], -results.Reaction(0, 2)[0], results.Reaction(0, 0)[2]);
}

void tst_FrameAnalysis::combinationsAreSumsOfTheirLoadCases()
{
    Structure structure;
    ModelGenerator::Building(structure, { 2, 1, 2, 6.0, 5.0, 3.5, 3 });
    structure.LoadCases().At(0).selfWeight = false;
    // The first combination's loads put into one load case of their own.
    Structure combined = structure;
    const Combination& combination = structure.Combinations().At(0);
    const Number loadCase = combined.LoadCases().Append(LoadCase {});
    for (const auto& [number, factor] : combination.factors) {
        for (const MemberLoad& load : structure.MemberLoads().Records()) {
            if (load.loadCase == number)
                AddLineLoad(combined, loadCase, load.member, load.direction, factor * load.value);
        }
        for (const NodalLoad& load : structure.NodalLoads().Records()) {
            if (load.loadCase != number)
                continue;
            Vector6 values = load.values;
            for (double& value : values)
                value *= factor;
            AddNodalLoad(combined, loadCase, load.node, values);
        }
    }

    const AnalysisOutcome byCombination = Analyse(structure);
    const AnalysisOutcome byLoads = Analyse(combined);

    QVERIFY(byCombination.succeeded && byLoads.succeeded);
    const std::size_t set = structure.LoadCases().Size(); // the first combination
    const std::size_t direct = combined.LoadCases().Size() - 1;
    QCOMPARE(byCombination.results->Sets()[set].kind, ResultSet::Kind::Combination);
    for (std::size_t node = 0; node < structure.Nodes().Size(); node += 5) {
        const Vector6 expected = byLoads.results->NodeDisplacement(direct, node);
        const Vector6 actual = byCombination.results->NodeDisplacement(set, node);
        for (std::size_t i = 0; i < 6; ++i)
            QCOMPARE_NEAR(actual[i], expected[i], 1e-2);
    }
    for (std::size_t member = 0; member < structure.Members().Size(); member += 3) {
        const Vector6 expected = byLoads.results->SectionForces(direct, member, 1.0);
        const Vector6 actual = byCombination.results->SectionForces(set, member, 1.0);
        for (std::size_t i = 0; i < 6; ++i)
            QCOMPARE_NEAR(actual[i], expected[i], 100.0);
    }
    const Vector6 expected = byLoads.results->Reaction(direct, 0);
    const Vector6 actual = byCombination.results->Reaction(set, 0);
    for (std::size_t i = 0; i < 6; ++i)
        QCOMPARE_NEAR(actual[i], expected[i], 100.0);
}

void tst_FrameAnalysis::unstableModelsAreRefused_data()
{
    QTest::addColumn<std::function<void(Structure&)>>("change");
    QTest::addColumn<QString>("message"); // a pattern

    // A portal of two bays, fixed at its feet, loaded in three load cases.
    QTest::newRow("node held by nothing") << std::function<void(Structure&)>([](Structure& structure) {
        structure.Nodes().Append({ 0, 20.0, 0.0, 0.0, {} });
    }) << "Node 7 is not connected to any member or support";
    QTest::newRow("pinned feet and hinged beams sway")
        << std::function<void(Structure&)>([](Structure& structure) {
               for (std::size_t i = 0; i < structure.Supports().Size(); ++i)
                   structure.Supports().At(i).fixed = c_translations;
               for (std::size_t i = 3; i < structure.Members().Size(); ++i)
                   structure.Members().At(i).startReleases = structure.Members().At(i).endReleases
                       = Dof(4) | Dof(5);
           })
        << "The structure is unstable: Node \\d can move in [ur][xyz] without resistance \\(a mechanism\\)";
    QTest::newRow("a moment where every member is hinged")
        << std::function<void(Structure&)>([](Structure& structure) {
               structure.Members().At(0).endReleases = Dof(3) | Dof(4) | Dof(5);
               structure.Members().At(3).startReleases = Dof(3) | Dof(4) | Dof(5);
               structure.NodalLoads().Append({ 0, 1, 2, { 0, 0, 0, 0, 5.0, 0 } });
           })
        << "Node 2 is loaded in ry, where nothing holds it";
    QTest::newRow("no load case") << std::function<void(Structure&)>([](Structure& structure) {
        structure.Combinations().Clear();
        structure.MemberLoads().Clear();
        structure.NodalLoads().Clear();
        structure.LoadCases().Clear();
    }) << "There is nothing to analyse: the model has no load cases";
}

void tst_FrameAnalysis::unstableModelsAreRefused()
{
    QFETCH(std::function<void(Structure&)>, change);
    QFETCH(QString, message);
    Structure structure;
    ModelGenerator::PortalFrame(structure, { 2, 6.0, 4.5 });
    change(structure);

    const AnalysisOutcome outcome = FrameAnalysis::Run(structure);

    QVERIFY(!outcome.succeeded);
    QVERIFY(!outcome.cancelled);
    QVERIFY(!outcome.results);
    TestHost host;
    const auto services = host.StartServices();
    const QString why = outcome.why.ToText(services->Get<Orvo::Kernel::Framework::IStringLoader>().get());
    QVERIFY2(QRegularExpression("^" + message + "$").match(why).hasMatch(), qPrintable(why));
}

void tst_FrameAnalysis::stoppedAnalysisGivesNoResults()
{
    Structure structure;
    ModelGenerator::Building(structure, { 3, 3, 3, 6.0, 5.0, 3.5, 2 });
    std::vector<AnalysisStage> stages;

    const AnalysisOutcome outcome = FrameAnalysis::Run(structure, [&stages](AnalysisStage stage, double) {
        stages.push_back(stage);
        return stage != AnalysisStage::Factorising;
    });

    QVERIFY(outcome.cancelled);
    QVERIFY(!outcome.succeeded);
    QVERIFY(!outcome.results);
    QCOMPARE(stages.front(), AnalysisStage::Preparing);
    QVERIFY(std::find(stages.begin(), stages.end(), AnalysisStage::Assembling) != stages.end());
    QCOMPARE(stages.back(), AnalysisStage::Factorising);
}

QTEST_GUILESS_MAIN(tst_FrameAnalysis)
#include "tst_frameanalysis.moc"
