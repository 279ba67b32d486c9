// zol: the desktop program.
#include "shell/desktop/application.h"

int main(int argc, char** argv) { return zol::run_application(argc, argv); }
