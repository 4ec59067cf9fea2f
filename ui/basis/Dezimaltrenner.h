#pragma once
#include <QLocale>

namespace vesk {

/// Decimal separator of the locale for what is shown with one; a point where the locale's own is no Latin-1.
inline char Dezimaltrenner(const QLocale& gebiet = QLocale()) {
  const char zeichen = gebiet.decimalPoint().at(0).toLatin1();
  return zeichen != 0 ? zeichen : '.';
}

}  // namespace vesk
