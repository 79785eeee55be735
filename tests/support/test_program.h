#pragma once
#include <QFileInfo>
#include <QtTest>

#include <memory>

/// The tests of one folder are one program, and its first argument is the name of the one to run. Each file ends with
/// LOFT_TEST_MAIN(ItsClass), which adds its test under the file's name without "tst_".
#define LOFT_TEST_MAIN(TestClass) \
  static const bool kIsAdded =    \
      AddTest(__FILE__, [] { return std::unique_ptr<QObject>(std::make_unique<TestClass>()); });

using MakeTest = std::unique_ptr<QObject> (*)();

/// Adds the test of a source file to its program; true.
bool AddTest(const char* sourceFile, MakeTest make);

/// What makes the test of this name; null, with the names there are on the error output, when there is none.
MakeTest FindTest(const char* name);

/// The main function of a test program whose tests need this kind of application. What follows the test's name on the
/// command line is for Qt Test. Tests run beside each other, so each is an application, with settings, of its own name.
template <class App>
int RunTestProgram(int argc, char** argv) {
  const MakeTest make = FindTest(argc > 1 ? argv[1] : "");
  if (!make) return EXIT_FAILURE;
  QCoreApplication::setApplicationName(QFileInfo(argv[0]).fileName() + QLatin1Char('_') + QLatin1String(argv[1]));
  argv[1] = argv[0];
  ++argv;
  --argc;
  App app(argc, argv);
  app.setAttribute(Qt::AA_Use96Dpi);
  return QTest::qExec(make().get(), argc, argv);
}
