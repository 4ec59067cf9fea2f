#pragma once
#include <memory>

#include "platform/Drucker.h"

class QPrinter;

namespace vesk {

/// The user's choice of printer and pages in a dialog of this title and button: `Gedruckt` to go on.
using Druckerdialog =
    std::function<Druckausgang(QPrinter& drucker, const QString& titel, const QString& knopf, int seiten)>;
Druckausgang DruckerErfragen(QPrinter& drucker, const QString& titel, const QString& knopf, int seiten);

class QtDrucker : public Drucker {
 public:
  explicit QtDrucker(Druckerdialog dialog = DruckerErfragen);
  ~QtDrucker() override;
  Druckausgang Einrichten() override;
  Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) override;
  Druckausgang TextDrucken(const QTextDocument& dokument, const QString& titel) override;

 private:
  Druckausgang Waehlen(const QString& titel, const QString& knopf, int seiten);

  Druckerdialog dialog_;
  std::unique_ptr<QPrinter> drucker_;  ///< made when first needed: it loads what the print server needs
};

}  // namespace vesk
