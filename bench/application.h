#pragma once

/// Makes the QApplication that benchmarks of screens need; the second call does nothing.
void BenchApplication();
