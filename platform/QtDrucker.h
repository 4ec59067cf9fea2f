#pragma once
#include <memory>

#include "platform/Drucker.h"

class QPrinter;

namespace vesk {

class QtDrucker : public Drucker {
 public:
  QtDrucker();
  ~QtDrucker() override;
  Druckausgang Einrichten() override;
  Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) override;
  Druckausgang TextDrucken(const QTextDocument& dokument, const QString& titel) override;

 private:
  /// The printer, which the user has chosen in a dialog of this title and button; or why there is none.
  Druckausgang Waehlen(const QString& titel, const QString& knopf, int seiten);

  std::unique_ptr<QPrinter> drucker_;  ///< made when first needed: it loads what the print server needs
};

}  // namespace vesk
