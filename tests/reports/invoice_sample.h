#pragma once
#include "reports/invoice_data.h"

/// An invoice with a line of each kind, made by hand: its forms need no loft.
inline InvoiceData SampleInvoice() {
  InvoiceData invoice;
  invoice.business = {QStringLiteral("Sky Loft"), QStringLiteral("1 Airport Road")};
  invoice.jobTitle = QStringLiteral("Spring service");
  invoice.rigName = QStringLiteral("Blue");
  invoice.number = QStringLiteral("A-7");
  invoice.started = Date::FromParts(2026, 3, 9);
  invoice.customer = {QStringLiteral("Ann Jones"), QStringLiteral("12 Elm Street")};
  invoice.rig = RigTable{
      QStringLiteral("Sport rig  (Rig name: Blue)"),
      {{QStringLiteral("AAD"), QStringLiteral("Cypres 2"), QStringLiteral("C2-9"), QStringLiteral("01/15/2020")}}};
  invoice.lines = {{QStringLiteral("Repack"), Money::Whole(70)},
                   {QStringLiteral("Closing loop"), Money::FromUnits(45500), true},
                   {QStringLiteral("Reserve ride"), Money::Whole(1), false, true}};
  invoice.due = {{QStringLiteral("Repack"), Date::FromParts(2026, 9, 5)}};
  invoice.lives = {{QStringLiteral("Cypres 2"), Date::FromParts(2035, 7, 15)}};
  return invoice;
}
