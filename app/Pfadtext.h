#pragma once
#include <QString>
#include <filesystem>

#include "persistence/Pfade.h"

/// Paths of the toolkit, which are texts.
namespace vesk {

inline std::filesystem::path AlsPfad(const QString& text) {
  return PfadAusUtf8(text.toStdString());
}

inline QString AlsText(const std::filesystem::path& pfad) {
  return QString::fromStdString(PfadAlsUtf8(pfad));
}

}  // namespace vesk
