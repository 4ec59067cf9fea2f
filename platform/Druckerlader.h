#pragma once
#include <memory>

#include "platform/Drucker.h"

namespace vesk {

/// The printer of the toolkit. Lives in a library of its own, which is loaded when the user first wants it:
/// what it needs would cost every start memory.
class Druckerlader : public Drucker {
 public:
  Druckausgang Einrichten() override;
  Druckausgang Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) override;
  Druckausgang TextDrucken(const QTextDocument& dokument, const QString& titel) override;

 private:
  Druckausgang Mit(const std::function<Druckausgang(Drucker&)>& tun);

  std::unique_ptr<Drucker> drucker_;
};

/// What the library exports; the caller owns the printer.
using Druckeranleger = Drucker*();
inline constexpr const char* DruckerBibliothek = "vesk_drucker";
inline constexpr const char* DruckeranlegerName = "vesk_drucker_anlegen";

}  // namespace vesk
