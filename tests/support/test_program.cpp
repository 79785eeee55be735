#include "support/test_program.h"

#include <filesystem>
#include <iostream>
#include <map>
#include <string>

namespace {

std::map<std::string, MakeTest>& Tests() {
  static std::map<std::string, MakeTest> tests;
  return tests;
}

}  // namespace

bool AddTest(const char* sourceFile, MakeTest make) {
  constexpr std::string_view kPrefix = "tst_";
  return Tests().emplace(std::filesystem::path(sourceFile).stem().string().substr(kPrefix.size()), make).second;
}

MakeTest FindTest(const char* name) {
  if (const auto test = Tests().find(name); test != Tests().end()) return test->second;
  std::cerr << "There is no test \"" << name << "\" here. There are:\n";
  for (const auto& [there, make] : Tests()) std::cerr << "  " << there << '\n';
  return nullptr;
}
