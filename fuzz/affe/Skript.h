#pragma once
#include <QString>
#include <cstdio>

namespace vesk::affe {

/// One line of what happens. It must be out before the program can die of it.
inline void Schreiben(const QString& zeile) {
  std::fprintf(stdout, "%s\n", qUtf8Printable(zeile));
  std::fflush(stdout);
}

}  // namespace vesk::affe
