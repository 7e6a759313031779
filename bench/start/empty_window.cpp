// A Qt Widgets window with nothing in it.

#include <QApplication>
#include <QMainWindow>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(u"Empty"_s);
    window.showMaximized();
    return QApplication::exec();
}
