// Runs the benchmarks; or one measurement that needs a process of its own.
#include "Benchmarks/EditorBenchmarks.hpp"
#include "Benchmarks/StartBenchmarks.hpp"

#include <benchmark/benchmark.h>

#include <string_view>

int main(int argc, char** argv)
{
    if (argc == 4 && argv[1] == std::string_view(Benchmarks::measureStartOption))
        return Benchmarks::measureStart(argv[2], argv[3]);
    if (argc == 3 && argv[1] == std::string_view(Benchmarks::measureFontRowsOption))
        return Benchmarks::measureFontRows(argv[2]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
