#include "faults/commands.h"

#include <QTest>

const std::vector<Command>& Commands() {
  static const std::vector<Command> commands = [] {
    std::vector<Command> all;
    for (const auto& part :
         {CommandsOnJobs(), CommandsOnGearOfJobs(), CommandsOnTheLibrary(), CommandsOnGear(), CommandsOnTheCatalogue()})
      all.insert(all.end(), part.begin(), part.end());
    return all;
  }();
  return commands;
}

void AddRowsOfCommands() {
  QTest::addColumn<int>("index");
  for (size_t i = 0; i < Commands().size(); ++i) QTest::newRow(Commands()[i].name) << static_cast<int>(i);
}
