// The least that a program with a window can be: what the start of tav-dairy is compared with.
#include "bench/first_paint.h"

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    QApplication application(argc, argv);
    const tav::FirstPaint end(argv[1]);
    QWidget window;
    window.resize(600, 432);
    window.show();
    return QApplication::exec();
}
