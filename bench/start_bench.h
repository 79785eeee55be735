#pragma once

/// The argument that makes this program start as Loftkeep does, once.
constexpr char kStartOnce[] = "--start-once";

/// Starts as Loftkeep does and ends the process when the home page is painted, telling the megabytes it holds then.
int StartOnce();
