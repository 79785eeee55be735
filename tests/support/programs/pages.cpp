#include <QGuiApplication>

#include "support/test_program.h"

int main(int argc, char** argv) { return RunTestProgram<QGuiApplication>(argc, argv); }
