// The baseline of the start-up figure: a Qt window with 300 plain widgets and nothing else.

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto *grid = new QGridLayout(&window);
    for (int i = 0; i < 300; ++i) {
        QWidget *widget = i % 2 == 0 ? static_cast<QWidget *>(new QLabel(QString::number(i)))
                                     : new QPushButton(QString::number(i));
        grid->addWidget(widget, i / 15, i % 15);
    }
    window.resize(1280, 860);
    window.show();
    return QApplication::exec();
}
