#include "Textfeld.h"

#include <QKeyEvent>

#include "Plattform.h"
#include "Windows1252.h"

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

Textfeld::Textfeld(Signalton& ton, QWidget* eltern) : Filterfeld(eltern), ton_(ton) {}

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
