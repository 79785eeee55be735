#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "jobs/lines.h"

/// A rig made from the gear of a job that has none, or whose rig has been deleted.

/// Asks whether a new job is started, since this one involves a rig already.
bool AskStartNewJobForRig();
/// Is there still somebody who can own the rig? A box tells when there isn't.
bool CustomerCanOwnRig(const JobContext& job);
/// Asks for each component that an existing rig wears whether it may move; false at the first No.
bool AllComponentsArefree(int jobID);

/// What a job's only component leads to when a rig wears it.
enum class RigOfOnlyComponent { Cancel, NewRig, TakeRig };
/// Asks whether the rig that wears the job's only component is put on the job. A job with more gear, or with gear in
/// no rig, makes a new rig.
RigOfOnlyComponent AskRigOfOnlyComponent(int jobID);
/// Puts an existing rig on a job: the job's gear becomes what the rig wears.
void TakeRig(int jobID, int rigID);

/// Asks whether the job's gear is used.
bool AskUseComponents();
/// A rig holds one component of each type; a box tells of a type that the job has more often. True when it has.
bool RefuseDoubledTypes(int jobID);
/// Can a rig of this type be built with all gear of the job? A box tells of the first component that doesn't fit.
bool GearFitsRigType(int jobID, int rigType);

/// Asks for the name of the owner's new rig until it is free; empty when the person gave up.
QString AskNameOfNewRig(int owner);
/// Builds a rig of the job's gear for the job's customer: what other rigs wear moves after a question each, then the
/// rig gets its name. The rig, 0 when the person gave up, and then everything is as it was.
int BuildRigFromJob(const JobContext& job, int rigType, Date date);
void TellRigCreated(int rigID);

/// May an existing rig be put on the job? A box tells of a rig or of gear that stands in its way.
bool MayImportRig(const JobContext& job);
