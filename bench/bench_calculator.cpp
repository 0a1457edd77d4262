// Calculator::Evaluate against muparser called directly (SetExpr, then Eval) on the inputs a
// numeric field sees. Goals: a plain number at least 10x faster than muparser (it skips the parser),
// an expression at most 2x muparser's own time.

#include "framework/Calculator.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cstdio>
#include <map>
#include <ostream>
#include <string>

namespace {

struct Input
{
    const char* name;
    std::wstring calculatorText;
    // The same computation in muparser's own dialect (no units, "_pi").
    std::string muparserText;
    double goal; // the largest acceptable calculator/muparser time ratio
};

const Input c_inputs[] = {
    { "plain number", L"12.5", "12.5", 0.1 },
    { "arithmetic", L"2*(3+4)/5", "2*(3+4)/5", 2.0 },
    { "units and function", L"sin(30deg)+500mm", "sin(30*_pi/180)+500/1000", 2.0 },
};

void Calculator(benchmark::State& state, const Input& input)
{
    double value = 0;
    for (auto _ : state) {
        const bool ok = Orvo::Kernel::Framework::Calculator::Evaluate(input.calculatorText, value);
        benchmark::DoNotOptimize(ok);
        benchmark::DoNotOptimize(value);
    }
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
        std::snprintf(line, sizeof line, "\n%-20s %14s %14s %10s %8s\n", "input", "calculator ns",
                      "muparser ns", "ratio", "goal");
        out << line;
        for (const Input& input : c_inputs) {
            const double calculator = Time(std::string("Calculator/") + input.name);
            const double muparser = Time(std::string("Muparser/") + input.name);
            if (calculator <= 0 || muparser <= 0)
                continue;
            const double ratio = calculator / muparser;
            const bool met = ratio <= input.goal;
            allMet = allMet && met;
            std::snprintf(line, sizeof line, "%-20s %14.1f %14.1f %9.3fx %6s%.2f%s\n", input.name, calculator,
                          muparser, ratio, "<=", input.goal, met ? "" : "  MISSED");
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
        benchmark::RegisterBenchmark((std::string("Muparser/") + input.name).c_str(), Muparser, input);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.PrintRatios() ? 0 : 1;
}
