#pragma once
#include <QMap>
#include <QString>
#include <QStringList>

#include "support/temp_folder.h"

/// Makes a database file of the present schema with one customer of this last name, and a model. The shared connection
/// stays where it was.
void MakeDatabaseFile(const QString& path, const QString& lastName);

/// The last names of the customers in a database file.
QStringList CustomersIn(const QString& path);

/// What another computer exported: the database of the customer "New", a photo in two sizes, two backups, support
/// files, and the version "010". The folder's path.
QString MakeExport(const TempFolder& folder, const QString& name = QStringLiteral("Ann's export"));

/// Every file and folder below a folder, with its content.
QMap<QString, QByteArray> FilesBelow(const QString& folder);
