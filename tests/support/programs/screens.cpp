#include <QApplication>

#include "support/test_program.h"

int main(int argc, char** argv) { return RunTestProgram<QApplication>(argc, argv); }
