#include "analysis/DesignCheck.h"
#include "analysis/FrameAnalysis.h"

#include <QTest>
#include <cmath>

using namespace Orvo::Kernel::Analysis;
using namespace Orvo::Kernel::Model;

Q_DECLARE_METATYPE(Vector6)

namespace {

// A steel rectangle 400 mm high and 200 mm wide: A = 80 000 mm², Wy = b h² / 6 = 5 333 333 mm³,
// Wz = h b² / 6 = 2 666 667 mm³; the material's strength is the default 235 MPa.
constexpr double c_strength = 235.0;

enum class Case
{
    SimplySupportedBeam,
    FixedBeam,
    Column,
};

void AddSupport(Structure& structure, Number node, DofMask fixed)
{
    Support support;
    support.node = node;
    support.fixed = fixed;
    structure.Supports().Append(support);
}

// One member 6 m long (a beam along x) or 4 m high (a column along z), one load case.
Structure Build(Case kind, double load, double rotation)
{
    Structure structure;
    CrossSection section;
    section.shape = SectionShape::Rectangle;
    section.height = 400.0;
    section.width = 200.0;
    structure.Sections().Append(section);
    structure.Materials().Append(Material {});
    structure.LoadCases().Append(LoadCase {});
    const bool column = kind == Case::Column;
    structure.Nodes().Append({ 0, 0.0, 0.0, 0.0, {} });
    structure.Nodes().Append({ 0, column ? 0.0 : 6.0, 0.0, column ? 4.0 : 0.0, {} });
    Member member;
    member.startNode = 1;
    member.endNode = 2;
    member.section = 1;
    member.material = 1;
    member.rotation = rotation;
    structure.Members().Append(member);
    switch (kind) {
    case Case::SimplySupportedBeam:
        // Pinned with torsion held at the start, a roller at the end.
        AddSupport(structure, 1, DofMask(c_translations | Dof(3)));
        AddSupport(structure, 2, DofMask(Dof(1) | Dof(2)));
        structure.MemberLoads().Append({ 0, 1, 1, LoadDirection::GlobalZ, -load });
        break;
    case Case::FixedBeam:
        AddSupport(structure, 1, c_allDofs);
        AddSupport(structure, 2, c_allDofs);
        structure.MemberLoads().Append({ 0, 1, 1, LoadDirection::GlobalZ, -load });
        break;
    case Case::Column:
        // A cantilever fixed at its foot: load kN down and a tenth of it sideways at the top.
        AddSupport(structure, 1, c_allDofs);
        structure.NodalLoads().Append({ 0, 1, 2, { load / 80.0, 0.0, -load, 0.0, 0.0, 0.0 } });
        break;
    }
    return structure;
}

} // namespace

// The check against stresses worked out by hand from the beam formulas.
class tst_DesignCheck : public QObject
{
    Q_OBJECT

private slots:
    void shouldFindTheLargestStressOfAMember_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("load");
        QTest::addColumn<double>("rotation");
        QTest::addColumn<double>("stress"); // MPa
        QTest::addColumn<double>("x"); // m; negative where two places tie
        // M = q l² / 8 = 12 × 36 / 8 = 54 kNm at midspan; 54e6 / 5 333 333 = 10.125 MPa.
        QTest::newRow("a simply supported beam, at midspan")
            << int(Case::SimplySupportedBeam) << 12.0 << 0.0 << 10.125 << 3.0;
        // Turned a quarter, it bends about its weak axis: 54e6 / 2 666 667 = 20.25 MPa.
        QTest::newRow("a beam on its side bends about its weak axis")
            << int(Case::SimplySupportedBeam) << 12.0 << 90.0 << 20.25 << 3.0;
        // M = q l² / 12 = 36 kNm at both ends (the midspan's 18 kNm does not govern): 6.75 MPa.
        QTest::newRow("a fixed beam, at its ends") << int(Case::FixedBeam) << 12.0 << 0.0 << 6.75 << -1.0;
        // N = 800 kN: 10 MPa; H = 10 kN over 4 m: 40 kNm at the foot, 7.5 MPa.
        QTest::newRow("a column adds axial and bending stress at its foot")
            << int(Case::Column) << 800.0 << 0.0 << 17.5 << 0.0;
    }

    void shouldFindTheLargestStressOfAMember()
    {
        QFETCH(int, kind);
        QFETCH(double, load);
        QFETCH(double, rotation);
        QFETCH(double, stress);
        QFETCH(double, x);
        const Structure structure = Build(Case(kind), load, rotation);
        const AnalysisOutcome analysis = FrameAnalysis::Run(structure);
        QVERIFY(analysis.succeeded);

        const DesignOutcome outcome = DesignCheck::Run(structure, *analysis.results);

        QCOMPARE(outcome.members.size(), std::size_t(1));
        const MemberDesign& member = outcome.members.front();
        QCOMPARE(member.member, 1);
        QVERIFY2(std::abs(member.stress - stress) < 1e-6,
                 qPrintable(QString::number(member.stress, 'g', 12)));
        if (x >= 0.0)
            QVERIFY2(std::abs(member.x - x) < 1e-9, qPrintable(QString::number(member.x, 'g', 12)));
        QCOMPARE(member.strength, c_strength);
        QVERIFY(std::abs(member.utilisation - stress / c_strength) < 1e-9);
        QCOMPARE(outcome.maxUtilisation, member.utilisation);
        QCOMPARE(outcome.governingMember, 1);
        QVERIFY(outcome.Passes());
    }

    void shouldFailAMemberStressedBeyondItsStrength_data()
    {
        QTest::addColumn<double>("load");
        QTest::addColumn<bool>("passes");
        // 54 kNm per 12 kN/m: 253.125 MPa at 300 kN/m, 227.8 MPa at 270 kN/m.
        QTest::newRow("beyond the strength") << 300.0 << false;
        QTest::newRow("just within it") << 270.0 << true;
    }

    void shouldFailAMemberStressedBeyondItsStrength()
    {
        QFETCH(double, load);
        QFETCH(bool, passes);
        const Structure structure = Build(Case::SimplySupportedBeam, load, 0.0);
        const AnalysisOutcome analysis = FrameAnalysis::Run(structure);
        QVERIFY(analysis.succeeded);

        const DesignOutcome outcome = DesignCheck::Run(structure, *analysis.results);

        QCOMPARE(outcome.Passes(), passes);
        QCOMPARE(outcome.failingCount, std::size_t(passes ? 0 : 1));
        QCOMPARE(outcome.members.front().Passes(), passes);
        QVERIFY(std::abs(outcome.maxUtilisation
                         - load * 54.0 / 12.0 * 1e6 / (200.0 * 400.0 * 400.0 / 6.0) / c_strength)
                < 1e-9);
    }

    void shouldLookWhereAShearForceChangesSign_data()
    {
        QTest::addColumn<Vector6>("start");
        QTest::addColumn<Vector6>("end");
        QTest::addColumn<double>("zero");
        QTest::newRow("shear about y")
            << Vector6 { 0, 0, -10, 0, 0, 0 } << Vector6 { 0, 0, 30, 0, 0, 0 } << 1.5;
        QTest::newRow("shear about z")
            << Vector6 { 0, 4, 0, 0, 0, 0 } << Vector6 { 0, -4, 0, 0, 0, 0 } << 3.0;
        QTest::newRow("no change of sign")
            << Vector6 { 0, 0, 5, 0, 0, 0 } << Vector6 { 0, 0, 1, 0, 0, 0 } << -1.0;
    }

    void shouldLookWhereAShearForceChangesSign()
    {
        QFETCH(Vector6, start);
        QFETCH(Vector6, end);
        QFETCH(double, zero);
        const std::vector<double> stations = DesignCheck::Stations(start, end, 6.0);
        QCOMPARE(stations.front(), 0.0);
        QCOMPARE(stations.at(10), 6.0);
        QCOMPARE(stations.size(), std::size_t(zero < 0.0 ? 11 : 12));
        if (zero >= 0.0)
            QCOMPARE(stations.back(), zero);
    }
};

QTEST_GUILESS_MAIN(tst_DesignCheck)
#include "tst_designcheck.moc"
