// A window of the toolkit with nothing in it, as large as the program's: what a start costs at
// least.
#include <QApplication>
#include <QPalette>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication applicazione(argc, argv);
    QWidget finestra;
    finestra.resize(800, 520);
    finestra.setPalette(QPalette(Qt::white));
    finestra.show();
    return QApplication::exec();
}
