#pragma once
#include <cstddef>
#include <string>
#include <vector>

namespace vesk {

struct Lesezeichen {
  std::string titel;
  std::size_t seite = 0;  ///< from 0
};

/// What a PDF bears beside its pages. UTF-8.
struct Pdfangaben {
  std::string titel;
  std::string verfasser;  ///< empty: none
  std::string programm;
  std::string zeit;  ///< as PDF writes it, "D:20260304050607Z"
  std::vector<Lesezeichen> lesezeichen;
};

/// Completes a PDF: `fertig` becomes `roh` with these and nothing else that says when or how it was made.
/// Lives in a library of its own, which is loaded when the first PDF is made: what it needs would cost every
/// start several megabytes.
using Pdfabschluss = void(const std::string& roh, const Pdfangaben& angaben, std::string& fertig);
inline constexpr const char* PdfabschlussBibliothek = "vesk_pdf";
inline constexpr const char* PdfabschlussName = "vesk_pdf_abschliessen";

}  // namespace vesk
