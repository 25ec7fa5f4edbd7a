// What the toolkit itself costs: a window of the program's size with as many plain widgets as the practice screen has.
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    QGridLayout grid(&window);
    for (int i = 0; i < 60; ++i) {
        QWidget* const widget =
            i % 2 == 0 ? static_cast<QWidget*>(new QLabel(QString::number(i))) : new QPushButton(QString::number(i));
        grid.addWidget(widget, i / 6, i % 6);
    }
    window.resize(832, 520);
    window.show();
    return QApplication::exec();
}
