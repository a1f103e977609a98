#include <benchmark/benchmark.h>

#include <QApplication>

// The cost of a tick on the board, compared with the reference painter, which paints everything
// with QPainter, and with the lower bound of any painting: copying the board's pixels once.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
