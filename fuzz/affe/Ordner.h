#pragma once
#include <QDir>
#include <QTemporaryDir>

#include "fuzz/affe/Zufall.h"

namespace vesk::affe {

/// A program directory as a long life with bad disks, other programs and curious users leaves it.
class Ordner {
 public:
  explicit Ordner(Zufall& zufall) : zufall_(zufall) {}
  QString Pfad() const { return ordner_.filePath(QStringLiteral("vesk")); }
  /// What a user might choose in a file dialog: here or elsewhere, there or not, of any kind.
  QString Datei(const QString& endung);
  /// Something goes wrong with some of the files while no program runs.
  void Beschaedigen();

 private:
  QStringList Dateien(QDir::Filters welche) const;
  void Treffen(const QString& datei);

  Zufall& zufall_;
  QTemporaryDir ordner_;
};

}  // namespace vesk::affe
