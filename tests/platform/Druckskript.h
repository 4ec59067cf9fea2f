#pragma once
#include <QStringList>
#include <QTextDocument>

#include "Dokumentdrucker.h"

namespace vesk::skript {

/// Records what would have gone to paper.
class Drucker : public Dokumentdrucker {
 public:
  bool Drucken(const QTextDocument& dokument, const QString& titel) override {
    titelliste << titel;
    texte << dokument.toPlainText();
    return true;
  }
  QStringList titelliste;
  QStringList texte;
};

}  // namespace vesk::skript
