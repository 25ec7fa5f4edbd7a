// What the toolkit itself costs: a window with as many plain widgets as the practice screen has.
// usage: bare_window WIDTH HEIGHT   in pixels
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    QGridLayout grid(&window);
    for (int i = 0; i < 60; ++i) {
        QWidget* const widget =
            i % 2 == 0 ? static_cast<QWidget*>(new QLabel(QString::number(i))) : new QPushButton(QString::number(i));
        grid.addWidget(widget, i / 6, i % 6);
    }
    if (argc == 3) window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    window.show();
    return QApplication::exec();
}
