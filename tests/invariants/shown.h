#pragma once
#include <QString>
#include <QStringList>

#include <vector>

class Form;

/// One thing that a screen shows: the control (or menu command) that shows it, and what it shows.
struct ShownThing {
  QString control;
  QString text;
  friend bool operator==(const ShownThing&, const ShownThing&) = default;
};

/// All that a person sees of a screen: its caption, texts, rows, ticks, what is selected (by id), enabled, on show.
/// What stands in the list of exceptions is left out, see exceptions.h.
std::vector<ShownThing> WhatShows(const Form& form);

/// Where two of them part, in words; empty when they show the same.
QString Difference(const std::vector<ShownThing>& open, const std::vector<ShownThing>& fresh);

/// A row that is selected, by the id of what it stands for, or a text that is being typed (into the row, for a cell).
struct Held {
  QString control;
  QString row;
  QString typed;
  friend bool operator==(const Held&, const Held&) = default;
};
std::vector<Held> SelectedRows(const Form& form);
std::vector<Held> TypedTexts(const Form& form);
/// The job that a screen is about, 0 for another screen.
int JobOf(const Form& form);
/// Does a list or grid of the screen still have such a row? True for a control without rows.
bool HasRow(const Form& form, const Held& held);
