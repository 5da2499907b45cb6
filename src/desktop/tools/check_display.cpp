// Whether there is a display to draw on: exit status 0 if so. Qt ends a program that has none.
#include <QGuiApplication>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    return QGuiApplication::primaryScreen() == nullptr ? 1 : 0;
}
