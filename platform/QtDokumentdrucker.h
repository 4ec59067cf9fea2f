#pragma once
#include "platform/Dokumentdrucker.h"

namespace vesk {

class QtDokumentdrucker : public Dokumentdrucker {
 public:
  bool Drucken(const QTextDocument& dokument, const QString& titel) override;
};

}  // namespace vesk
