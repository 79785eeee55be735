#pragma once
#include <QString>

/// Copies that leave for another computer. The record of operations (core/store/undo.h) holds what was deleted here,
/// with names and addresses, so no copy takes it along: not the table, nor what else is left of deleted rows in the
/// unused parts of the file. A backup in the loft's own folder keeps the record: it is put back into this loft, and
/// what was done last can then still be taken back.

/// Copies the live loft as it stands now. A failure shows its box, and the destination stays as it was; true when it
/// was copied.
bool CopyLoftForOthers(const QString& destination);

/// Copies a file, as MyFileCopy does; a database that holds the record goes without it.
bool CopyFileForOthers(const QString& source, const QString& destination);
