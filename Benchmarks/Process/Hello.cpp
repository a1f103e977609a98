#include <QApplication>
#include <QLabel>

// The baseline of the benchmarks: a full-screen Qt window with one label.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("hello"));
    window.setAlignment(Qt::AlignCenter);
    window.showFullScreen();
    return QApplication::exec();
}
