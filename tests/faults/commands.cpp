#include "faults/commands.h"

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
