#pragma once
#include <QString>

/// The name and address of the shop, which heads its invoices and statements: "address.txt" in the support folder.

/// Its lines joined by line ends; empty when none has been saved.
QString GetBusinessAddress();
/// Keeps the address without the blank lines at its end. Throws `Failure` when it can't be written.
void WriteAddress(const QString& address);
/// Keeps the address and says so.
void SaveAddress(const QString& address);
