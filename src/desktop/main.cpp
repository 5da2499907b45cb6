// The desktop program.
#include "desktop/application.h"

int main(int argc, char** argv) { return tav::RunDesktop(argc, argv); }
