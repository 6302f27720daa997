// Shows a window of the launcher's size and style with one label, as the floor for the launcher's start. If
// the argument is a producer, the program first enumerates the producer's cameras, and the label shows their
// number.

#include "bench/programs/directListing.h"

#include <QApplication>
#include <QLabel>
#include <QStyleFactory>
#include <QWidget>

int main(int argc, char *argv[])
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication application(argc, argv);
    QWidget window;
    QLabel label(QStringLiteral("Nothing"), &window);
    if (argc > 1) {
        const int count = listDirectly(argv[1]);
        if (count < 0)
            return EXIT_FAILURE;
        label.setNum(count);
    }
    window.setFixedSize(600, 660);
    window.show();
    return QApplication::exec();
}
