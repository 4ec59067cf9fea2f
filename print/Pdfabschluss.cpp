#include "print/Pdfabschluss.h"

// The library's former pointer class is not used here.
#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <type_traits>

namespace vesk {

namespace {

QPDFObjectHandle Unicode(const std::string& text) {
  return QPDFObjectHandle::newUnicodeString(text);
}

/// Bookmarks in a row, each leading to the whole of its page.
QPDFObjectHandle Gliederung(QPDF& pdf, const std::vector<Lesezeichen>& lesezeichen) {
  const std::vector<QPDFPageObjectHelper> seiten = QPDFPageDocumentHelper(pdf).getAllPages();
  QPDFObjectHandle wurzel = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
  QPDFObjectHandle vorher;
  for (const Lesezeichen& zeichen : lesezeichen) {
    QPDFObjectHandle eintrag = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    eintrag.replaceKey("/Title", Unicode(zeichen.titel));
    eintrag.replaceKey("/Parent", wurzel);
    eintrag.replaceKey("/Dest", QPDFObjectHandle::newArray({seiten.at(zeichen.seite).getObjectHandle(),
                                                            QPDFObjectHandle::newName("/Fit")}));
    if (vorher.isInitialized()) {
      eintrag.replaceKey("/Prev", vorher);
      vorher.replaceKey("/Next", eintrag);
    } else {
      wurzel.replaceKey("/First", eintrag);
    }
    vorher = eintrag;
  }
  if (vorher.isInitialized()) wurzel.replaceKey("/Last", vorher);
  wurzel.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<int>(lesezeichen.size())));
  return wurzel;
}

QPDFObjectHandle Angaben(const Pdfangaben& angaben) {
  QPDFObjectHandle liste = QPDFObjectHandle::newDictionary();
  liste.replaceKey("/Title", Unicode(angaben.titel));
  if (!angaben.verfasser.empty()) liste.replaceKey("/Author", Unicode(angaben.verfasser));
  liste.replaceKey("/Creator", Unicode(angaben.programm));
  liste.replaceKey("/Producer", Unicode(angaben.programm));
  liste.replaceKey("/CreationDate", QPDFObjectHandle::newString(angaben.zeit));
  liste.replaceKey("/ModDate", QPDFObjectHandle::newString(angaben.zeit));
  return liste;
}

}  // namespace

}  // namespace vesk

extern "C" __attribute__((visibility("default"))) void vesk_pdf_abschliessen(const std::string& roh,
                                                                             const vesk::Pdfangaben& angaben,
                                                                             std::string& fertig) {
  QPDF pdf;
  pdf.processMemoryFile("papiere", roh.data(), roh.size());
  QPDFObjectHandle katalog = pdf.getRoot();
  katalog.removeKey("/Metadata");  // would bear the time of the writing
  katalog.replaceKey("/Outlines", vesk::Gliederung(pdf, angaben.lesezeichen));
  if (angaben.lesezeichen.size() > 1) {
    katalog.replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
  }
  katalog.replaceKey("/Lang", QPDFObjectHandle::newString("de-DE"));
  pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(vesk::Angaben(angaben)));

  QPDFWriter schreiber(pdf);
  schreiber.setOutputMemory();
  schreiber.setDeterministicID(true);
  schreiber.setObjectStreamMode(qpdf_o_generate);
  schreiber.write();
  const auto ergebnis = schreiber.getBufferSharedPointer();
  fertig.assign(reinterpret_cast<const char*>(ergebnis->getBuffer()), ergebnis->getSize());
}

// What the program looks for is what stands here.
static_assert(std::is_same_v<decltype(vesk_pdf_abschliessen), vesk::Pdfabschluss>);
