#pragma once
#include <QList>
#include <QString>

#include <optional>

#include "core/date.h"

/// The record of operations, in the loft's own file: what each one wrote, made in the same transaction, so that it can
/// be taken back - across screens and restarts - and done again. It keeps the last operations up to 20 MB, the oldest
/// go first. One that took itself back, like the start of a job that is cancelled, is not entered. A file without a
/// record opens like any other; it gets one with its first operation.

struct RecordedOperation {
  int id = 0;
  QString name;    ///< "Delete job"
  QString screen;  ///< the form that was in front, empty for none
  Date at;         ///< day and time
  int rows = 0;    ///< how many rows it wrote
  bool undone = false;
  bool kept = true;  ///< false for one that was too large to keep: it can't be taken back, nor what came before it
};

/// What the next undo takes back, or the next redo does again; nothing when there is nothing.
std::optional<RecordedOperation> NextUndo();
std::optional<RecordedOperation> NextRedo();

/// The latest operations, the last one first, undone ones among them.
QList<RecordedOperation> RecentOperations(int most = 200);

/// Takes the last operation back. What was changed since, by whatever was not recorded, is not overwritten: a box names
/// it, and nothing is changed. True when it was taken back.
bool UndoOperation();
/// Does the operation that was taken back last again, by the same rules.
bool RedoOperation();

/// Whether operations are recorded; they are unless this is turned off.
void SetRecordsOperations(bool records);

/// How the end of an operation enters it in the record; throws like any statement.
struct OperationEntry {
  QString name;  ///< empty for upkeep, which is taken back together with the operation before it
  QString screen;
};
void RecordOperation(const OperationEntry& entry);
