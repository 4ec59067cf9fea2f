#pragma once

class QString;
class QTextDocument;

namespace vesk {

/// Puts a text document on paper after asking the user for the printer.
class Dokumentdrucker {
 public:
  virtual ~Dokumentdrucker() = default;
  /// `titel` names the print job. False when the user cancelled.
  virtual bool Drucken(const QTextDocument& dokument, const QString& titel) = 0;
};

}  // namespace vesk
