#include <QCoreApplication>

#include "support/test_program.h"

int main(int argc, char** argv) { return RunTestProgram<QCoreApplication>(argc, argv); }
