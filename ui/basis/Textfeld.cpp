#include "Textfeld.h"

#include <QKeyEvent>
#include <algorithm>
#include <string_view>

#include "Plattform.h"

namespace vesk {

namespace {

/// The characters that Windows-1252 holds at 0x80 to 0x9F.
constexpr std::u16string_view Zusatz = u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";

bool Schreibbar(QChar zeichen) {
  const char16_t code = zeichen.unicode();
  if (code == u'"') return false;
  return (code >= 0x20 && code <= 0x7E) || (code >= 0xA0 && code <= 0xFF) ||
         Zusatz.find(code) != std::u16string_view::npos;
}

bool IstSteuerzeichen(QChar zeichen) {
  return zeichen.category() == QChar::Other_Control;
}

}  // namespace

Textfeld::Textfeld(Signalton& ton, QWidget* eltern) : Filterfeld(eltern), ton_(ton) {}

void Textfeld::keyPressEvent(QKeyEvent* ereignis) {
  const QString text = ereignis->text();
  if (text.isEmpty() || IstSteuerzeichen(text.at(0)) || isReadOnly()) {
    Filterfeld::keyPressEvent(ereignis);
    return;
  }
  const QString rest = Filtern(text);
  if (rest == text) {
    Filterfeld::keyPressEvent(ereignis);
  } else if (!rest.isEmpty()) {
    QKeyEvent ersatz(ereignis->type(), ereignis->key(), ereignis->modifiers(), rest);
    Filterfeld::keyPressEvent(&ersatz);
  }
}

QString Textfeld::Filtern(const QString& text) {
  QString rest;
  bool piep = false;
  for (QChar zeichen : text.size() > 1 ? text.trimmed() : text) {
    if (IstSteuerzeichen(zeichen)) zeichen = u' ';
    if (zeichen == u',' && kommaWirdPunkt) zeichen = u'.';
    if (Schreibbar(zeichen)) {
      rest += zeichen;
    } else {
      piep = true;
    }
  }
  if (piep) ton_.Piep();
  return rest;
}

}  // namespace vesk
