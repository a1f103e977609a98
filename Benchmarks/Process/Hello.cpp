#include <QApplication>
#include <QLabel>

// What the toolkit itself costs: the plainest window that fills the screen.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("hello"));
    window.setAlignment(Qt::AlignCenter);
    window.showFullScreen();
    return QApplication::exec();
}
