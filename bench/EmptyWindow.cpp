// orvelle-empty-window: a window of Qt with nothing in it, which is the least that a program with a window of Qt takes.
// bench/neighbours measures the panel against it.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(960, 450);  // as large as the panel
    window.show();
    return QApplication::exec();
}
