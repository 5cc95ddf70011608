#include "desktop/desktop.h"

int main(int argumentCount, char** arguments) { return dorvan::RunDesktop(argumentCount, arguments); }
