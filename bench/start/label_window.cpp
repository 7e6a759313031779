// The least that a question can be: a window with a text and a button.

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QWidget window;
    QVBoxLayout column(&window);
    QLabel text(u"Which pack?"_s);
    QPushButton button(u"OK"_s);
    column.addWidget(&text);
    column.addWidget(&button);
    window.setWindowTitle(u"Label"_s);
    window.show();
    return QApplication::exec();
}
