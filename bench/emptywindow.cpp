// The floor that the shell is measured against: the least a Qt program with a window of this size can cost.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setGeometry(0, 0, 800, 460);
    window.show();
    return QApplication::exec();
}
