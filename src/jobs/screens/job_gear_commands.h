#pragma once
#include <functional>

#include "core/date.h"
#include "jobs/install_component.h"
#include "jobs/lines.h"

class Grid;

/// The job screen's commands on the gear of its job.
class JobGearCommands {
 public:
  /// What the commands need of the screen.
  struct Screen {
    Grid* grid = nullptr;             ///< the job's gear
    const JobContext* job = nullptr;  ///< the job that is shown; read it again after the person was asked
    std::function<Date()> date;       ///< the working date
  };
  explicit JobGearCommands(Screen screen) : screen_(std::move(screen)) {}

  // job_gear_commands.cpp
  void InstallComponent();
  void RemoveComponent();
  void EditSelectedComponent();
  void UpdateRig();
  void ClickCell(int row, int column);

  // job_rig_commands.cpp
  void MakeArig();
  void ImportRig();

 private:
  bool StillShows(int jobID) const { return jobID != 0 && jobID == screen_.job->jobID; }
  int Component(int row) const;
  int ComponentType(int row) const;
  void InstallComponentGuts(int type);
  void InstallComponentNoRig();

  void CheckComponentsForNewRig();
  void CreateNewJobNewRig();
  static int AddNewRig(const JobContext& job);

  Screen screen_;
};
