#pragma once

class Grid;

enum GearColumn { kGearType, kGearTypeName, kGearDescription, kGearSerial, kGearDom, kGearID };

/// The grid that shows the gear of a job: type, name, serial number, date of manufacture. A row's data is the
/// component.
void SetUpGearGrid(Grid& grid);
/// Fills it with the places of the job's gear; `rigID` is the job's rig, 0 when there is none or it has been deleted.
void FillGearGrid(Grid& grid, int jobID, int rigID);
