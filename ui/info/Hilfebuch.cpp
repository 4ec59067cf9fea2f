#include "ui/info/Hilfebuch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString& Kontextdatei() {
  static const QString name = u"kontext.html"_s;
  return name;
}

QDir Bilderordner(const QString& verzeichnis) {
  return QDir(verzeichnis + u"/bilder"_s);
}

QString KontextseitenName(int nummer) {
  return u"kontext-%1.html"_s.arg(nummer);
}

/// First numbers of the blocks, one block a window, and that of the boxes.
constexpr int Blockanfaenge[] = {1001, 2001, 2100, 3001, 4001, 5001, 6001, 7001, 7100, 8001};

/// About `Umfeld` characters of `text` on both sides of `stelle`, cut at blanks.
QString Auszug(const QString& text, qsizetype stelle) {
  constexpr qsizetype Umfeld = 60;
  qsizetype von = std::max<qsizetype>(0, stelle - Umfeld);
  qsizetype bis = std::min(text.size(), stelle + Umfeld);
  if (von > 0) von = text.indexOf(u' ', von) + 1;
  if (bis < text.size()) bis = std::max(text.lastIndexOf(u' ', bis), stelle);
  return (von > 0 ? u"… "_s : QString()) + text.mid(von, bis - von) +
         (bis < text.size() ? u" …"_s : QString());
}

QString Klartext(const QString& html) {
  QTextDocument dokument;
  dokument.setUndoRedoEnabled(false);
  dokument.setHtml(html);
  return dokument.toPlainText().simplified();
}

}  // namespace

QString Seitentitel(const QString& html) {
  static const QRegularExpression muster(u"<title>(.*?)</title>"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
  return muster.match(html).captured(1).simplified();
}

Hilfebuch::Hilfebuch(QString verzeichnis) : verzeichnis_(std::move(verzeichnis)) {}

std::optional<QString> Hilfebuch::Lesen(const QString& name) const {
  QFile datei(QDir(verzeichnis_).filePath(name));
  if (name.contains(u'/') || !datei.open(QIODevice::ReadOnly)) return std::nullopt;
  QString text = QString::fromUtf8(datei.readAll());
  static const QRegularExpression bildabsatz(u"<p><img [^>]*></p>\n"_s);
  if (!Bilderordner(verzeichnis_).exists()) text.remove(bildabsatz);
  return text;
}

QImage Hilfebuch::Bild(const QString& name) const {
  return QImage(Bilderordner(verzeichnis_).filePath(QFileInfo(name).fileName()));
}

bool Hilfebuch::Vorhanden(const QString& hilfedatei) const {
  const QString name =
      hilfedatei.compare(u"F1.HLP", Qt::CaseInsensitive) == 0 ? Kontextdatei() : u"inhalt.txt"_s;
  return QFile::exists(QDir(verzeichnis_).filePath(name));
}

const std::vector<Hilfeseite>& Hilfebuch::Inhalt() {
  if (inhalt_) return *inhalt_;
  inhalt_.emplace();
  for (const QString& zeile : Lesen(u"inhalt.txt"_s).value_or(QString()).split(u'\n', Qt::SkipEmptyParts)) {
    const QString name = zeile.trimmed();
    if (name.isEmpty()) continue;
    const auto text = std::find_if(zeile.begin(), zeile.end(), [](QChar z) { return z != u'\t'; });
    inhalt_->push_back({name, Seitentitel(Lesen(name).value_or(QString())),
                        static_cast<int>(std::distance(zeile.begin(), text))});
  }
  return *inhalt_;
}

void Hilfebuch::KontextLesen() {
  if (nummern_) return;
  nummern_.emplace();
  static const QRegularExpression eintrag(u"<div id=\"(\\d+)\">(.*?)</div>"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression ueberschrift(u"<h2>(.*?)</h2>"_s,
                                               QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression marke(u"<[^>]*>"_s);
  const QString datei = Lesen(Kontextdatei()).value_or(QString());
  for (auto treffer = eintrag.globalMatch(datei); treffer.hasNext();) {
    const QRegularExpressionMatch fund = treffer.next();
    const int nummer = fund.captured(1).toInt();
    const QString titel = ueberschrift.match(fund.captured(2)).captured(1).remove(marke);
    nummern_->push_back(nummer);
    kontext_.insert(KontextseitenName(nummer), u"<html><head><title>"_s + titel + u"</title></head><body>"_s +
                                                   fund.captured(2) + u"</body></html>"_s);
  }
}

std::optional<QString> Hilfebuch::Html(const QString& seite) {
  if (seite.startsWith(u"kontext-"_s)) {
    KontextLesen();
    const auto eintrag = kontext_.constFind(seite);
    if (eintrag != kontext_.constEnd()) return *eintrag;
  }
  return Lesen(seite);
}

const std::vector<int>& Hilfebuch::Kontextnummern() {
  KontextLesen();
  return *nummern_;
}

QString Hilfebuch::Kontextseite(int nummer) {
  KontextLesen();
  if (kontext_.contains(KontextseitenName(nummer))) return KontextseitenName(nummer);
  const auto* danach = std::upper_bound(std::begin(Blockanfaenge), std::end(Blockanfaenge), nummer);
  return KontextseitenName(danach == std::begin(Blockanfaenge) ? *danach : *std::prev(danach));
}

void Hilfebuch::SuchtexteLesen() {
  if (suchseiten_) return;
  suchseiten_.emplace();
  const auto aufnehmen = [this](const QString& name) {
    const QString html = Html(name).value_or(QString());
    suchseiten_->push_back({name, Seitentitel(html), Klartext(html)});
  };
  for (const Hilfeseite& seite : Inhalt()) {
    if (seite.name != Kontextdatei()) aufnehmen(seite.name);
  }
  for (const int nummer : Kontextnummern()) aufnehmen(KontextseitenName(nummer));
}

std::vector<Fundstelle> Hilfebuch::Suchen(const QString& begriff) {
  const QStringList worte = begriff.simplified().split(u' ', Qt::SkipEmptyParts);
  if (worte.isEmpty()) return {};
  SuchtexteLesen();
  std::vector<Fundstelle> imTitel;
  std::vector<Fundstelle> imText;
  for (const Suchseite& seite : *suchseiten_) {
    const auto enthalten = [](const QString& text) {
      return [&text](const QString& wort) { return text.contains(wort, Qt::CaseInsensitive); };
    };
    if (!std::all_of(worte.begin(), worte.end(), enthalten(seite.text))) continue;
    const bool titel = std::any_of(worte.begin(), worte.end(), enthalten(seite.titel));
    const qsizetype stelle = seite.text.indexOf(worte.front(), 0, Qt::CaseInsensitive);
    (titel ? imTitel : imText).push_back({seite.name, seite.titel, Auszug(seite.text, stelle)});
  }
  imTitel.insert(imTitel.end(), imText.begin(), imText.end());
  return imTitel;
}

}  // namespace vesk
