#pragma once
#include <QString>

/// True when the address has a ".", an "@", and something on both sides of the first "@".
bool IsLegalEmail(const QString& address);

/// Offers to enter the address that an invoice needs. True when a legal one was stored.
bool AskForInvoiceEmail(int person);
/// The same for a statement.
bool AskForStatementEmail(int person);
