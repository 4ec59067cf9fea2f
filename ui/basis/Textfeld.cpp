#include "ui/basis/Textfeld.h"

#include <QKeyEvent>

#include "station/Text.h"

namespace vesk {

namespace {

bool Schreibbar(QChar zeichen) {
  if (zeichen == u'"') return false;
  return zeichen == u'?' || NachWindows1252(QString(zeichen).toStdString()) != "?";
}

bool IstSteuerzeichen(QChar zeichen) {
  return zeichen.category() == QChar::Other_Control;
}

}  // namespace

void Textfeld::keyPressEvent(QKeyEvent* ereignis) {
  const QString text = ereignis->text();
  if (text.isEmpty() || FreieZugriffstaste(*ereignis) || IstSteuerzeichen(text.at(0)) || isReadOnly()) {
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
  bool verweigert = false;
  for (QChar zeichen : text.size() > 1 ? text.trimmed() : text) {
    if (IstSteuerzeichen(zeichen)) zeichen = u' ';
    if (zeichen == u',' && kommaWirdPunkt) zeichen = u'.';
    if (Schreibbar(zeichen)) {
      rest += zeichen;
    } else {
      verweigert = true;
    }
  }
  if (verweigert) Piep();
  return rest;
}

}  // namespace vesk
