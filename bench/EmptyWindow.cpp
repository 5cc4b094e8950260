// orvelle-empty-window: a window of Qt with nothing in it, which is the least that a program with a window of Qt takes.
// bench/neighbours measures the panel against it.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
