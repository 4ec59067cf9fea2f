#pragma once
#include <QString>

namespace vesk {

struct Station;

namespace affe {

/// Computes the figures on the screen anew from the inputs beside them, and compares the sheet with the
/// station. What is wrong, or nothing. `aktuell` counts the results that were not out of date.
QString Pruefen(const Station& station, int& aktuell);

}  // namespace affe
}  // namespace vesk
