// Calculator::Evaluate and Calculator::EvaluateQuantity (the unit-aware reading of a field) against
// muparser called directly (SetExpr, then Eval) on the inputs a numeric field sees. Goals: a plain
// number at least 10x faster than muparser (it skips the parser), an expression at most 2x
// muparser's own time, its quantity at most 4x (it evaluates the parsed expression four times);
// the longest expression the calculator reads stays close to muparser, and a longer one, which a
// field would otherwise evaluate on every keystroke, is refused for a tiny fraction of its parse.
// A field of several values (InlineCalculator's multiple mode) given a long paste evaluates no more
// than the longest expression: at most 2x muparser's time for that expression.

#include "framework/Calculator.h"
#include "valueentry/InlineCalculator.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cstdio>
#include <map>
#include <ostream>
#include <string>
#include <utility>

namespace {

struct Input
{
    const char* name;
    std::wstring calculatorText;
    // The same computation in muparser's own dialect (no units, "_pi").
    std::string muparserText;
    double goal; // the largest acceptable calculator/muparser time ratio
    double quantityGoal; // the same for EvaluateQuantity
};

// A sum of ones of the given length, the same text in both dialects.
std::string SumOfOnes(std::size_t length)
{
    std::string text = "1";
    while (text.size() + 2 <= length)
        text += "+1";
    return text;
}

const std::string c_longestAccepted
    = SumOfOnes(Orvo::Kernel::Framework::Calculator::c_maximumExpressionLength);
const std::string c_fourKilobytes = SumOfOnes(4096);

const Input c_inputs[] = {
    { "plain number", L"12.5", "12.5", 0.1, 0.1 },
    { "arithmetic", L"2*(3+4)/5", "2*(3+4)/5", 2.0, 2.0 },
    { "units and function", L"sin(30deg)+500mm", "sin(30*_pi/180)+500/1000", 2.0, 4.0 },
    { "longest accepted", std::wstring(c_longestAccepted.begin(), c_longestAccepted.end()), c_longestAccepted,
      2.0, 2.0 },
    { "4 KB, refused", std::wstring(c_fourKilobytes.begin(), c_fourKilobytes.end()), c_fourKilobytes, 0.01,
      0.01 },
};

// Texts pasted into a field of several values, each evaluated as a keystroke would (two texts in
// turn, since a text the same as before is not evaluated again).
struct Paste
{
    const char* name;
    QString text;
};

QString Repeated(const QString& value, int count)
{
    return QStringList(count, value).join(QLatin1Char(' '));
}

const Paste c_pastes[] = {
    { "several values, 100 KB of expressions", Repeated(QStringLiteral("1+1+1"), 100'000 / 6) },
    { "several values, 100 KB of numbers", Repeated(QStringLiteral("12.5"), 100'000 / 5) },
};
const char* const c_pasteBaseline = "Muparser/longest accepted";

void Several(benchmark::State& state, const Paste& paste)
{
    Orvo::UI::UIComponents::InlineCalculator calculator;
    calculator.setMultipleEnabled(true);
    calculator.setSeparators({ QStringLiteral(";"), QStringLiteral(" ") });
    const QString texts[] = { paste.text, paste.text + QStringLiteral(" 1") };
    int turn = 0;
    for (auto _ : state) {
        calculator.setExpression(texts[turn]);
        turn = 1 - turn;
        benchmark::DoNotOptimize(calculator.isValid());
    }
}

void Calculator(benchmark::State& state, const Input& input)
{
    double value = 0;
    for (auto _ : state) {
        const bool ok = Orvo::Kernel::Framework::Calculator::Evaluate(input.calculatorText, value);
        benchmark::DoNotOptimize(ok);
        benchmark::DoNotOptimize(value);
    }
}

void Quantity(benchmark::State& state, const Input& input)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(Orvo::Kernel::Framework::Calculator::EvaluateQuantity(input.calculatorText));
}

void Muparser(benchmark::State& state, const Input& input)
{
    mu::Parser parser;
    for (auto _ : state) {
        parser.SetExpr(input.muparserText);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

// Keeps each run's CPU time per iteration (the machine is shared, so wall time is noisy), so that
// the ratios can be printed after the console report.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0)
                m_nanoseconds[run.benchmark_name()] = run.GetAdjustedCPUTime();
        }
    }

    // Prints calculator/muparser per input; returns false when a goal was missed.
    bool PrintRatios()
    {
        std::ostream& out = GetOutputStream();
        bool allMet = true;
        char line[160];
        std::snprintf(line, sizeof line, "\n%-30s %14s %14s %10s %8s\n", "input", "calculator ns",
                      "muparser ns", "ratio", "goal");
        out << line;
        for (const Input& input : c_inputs) {
            const double muparser = Time(std::string("Muparser/") + input.name);
            for (const auto& [kind, goal] : { std::pair(std::string("Calculator"), input.goal),
                                              std::pair(std::string("Quantity"), input.quantityGoal) }) {
                const double calculator = Time(kind + "/" + input.name);
                if (calculator <= 0 || muparser <= 0)
                    continue;
                const double ratio = calculator / muparser;
                const bool met = ratio <= goal;
                allMet = allMet && met;
                const std::string name = (kind == "Quantity" ? "quantity of " : "") + std::string(input.name);
                std::snprintf(line, sizeof line, "%-30s %14.1f %14.1f %9.3fx %6s%.2f%s\n", name.c_str(),
                              calculator, muparser, ratio, "<=", goal, met ? "" : "  MISSED");
                out << line;
            }
        }
        const double baseline = Time(c_pasteBaseline);
        for (const Paste& paste : c_pastes) {
            const double several = Time(std::string("Several/") + paste.name);
            if (several <= 0 || baseline <= 0)
                continue;
            const double ratio = several / baseline;
            allMet = allMet && ratio <= 2.0;
            std::snprintf(line, sizeof line, "%-30s %14.1f %14.1f %9.3fx %6s%.2f%s\n", paste.name, several,
                          baseline, ratio, "<=", 2.0, ratio <= 2.0 ? "" : "  MISSED");
            out << line;
        }
        out.flush();
        return allMet;
    }

private:
    double Time(const std::string& name) const
    {
        const auto it = m_nanoseconds.find(name);
        return it == m_nanoseconds.end() ? 0 : it->second;
    }

    std::map<std::string, double> m_nanoseconds;
};

} // namespace

int main(int argc, char** argv)
{
    for (const Input& input : c_inputs) {
        benchmark::RegisterBenchmark((std::string("Calculator/") + input.name).c_str(), Calculator, input);
        benchmark::RegisterBenchmark((std::string("Quantity/") + input.name).c_str(), Quantity, input);
        benchmark::RegisterBenchmark((std::string("Muparser/") + input.name).c_str(), Muparser, input);
    }
    for (const Paste& paste : c_pastes)
        benchmark::RegisterBenchmark((std::string("Several/") + paste.name).c_str(), Several, paste);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.PrintRatios() ? 0 : 1;
}
