#include "core/widgets/application.h"
#include "support/test_program.h"

int main(int argc, char** argv) { return RunTestProgram<Application>(argc, argv); }
