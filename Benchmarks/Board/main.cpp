#include <benchmark/benchmark.h>

#include <QApplication>

// What a tick costs the board: against painting everything the straightforward way, and against
// the least that any painting costs, copying the board's pixels once.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
