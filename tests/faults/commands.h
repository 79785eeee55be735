#pragma once
#include <functional>
#include <vector>

struct Ground;

/// What a person does in one go.
struct Command {
  const char* name;
  /// The operations that may refuse it, as their boxes are titled, bars between.
  const char* routines;
  /// Does it.
  std::function<void(Ground&)> run;
  /// What must be there before; done once, before all trials.
  std::function<void(Ground&)> prepare = nullptr;
  /// Shows the screens that are open already when it begins.
  std::function<void(Ground&)> open = nullptr;
};

/// Sixty commands, from every subsystem that writes.
const std::vector<Command>& Commands();
/// A row for each, of its name and the column "index".
void AddRowsOfCommands();

// Their parts, by where a person finds them.
std::vector<Command> CommandsOnJobs();
std::vector<Command> CommandsOnGearOfJobs();
std::vector<Command> CommandsOnTheLibrary();
std::vector<Command> CommandsOnGear();
std::vector<Command> CommandsOnTheCatalogue();
