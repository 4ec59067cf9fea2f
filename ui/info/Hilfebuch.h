#pragma once
#include <QImage>
#include <QMap>
#include <QString>
#include <optional>
#include <vector>

namespace vesk {

/// One page of the contents; `ebene` 0 is a chapter.
struct Hilfeseite {
  QString name;
  QString titel;
  int ebene = 0;
};

struct Fundstelle {
  QString seite;
  QString titel;
  QString auszug;  ///< the text around the first hit
};

/// The help pages of a directory: HTML files, their order in "inhalt.txt" (one file name a line, a tab for
/// each level) and the context entries, the numbered <div>s of "kontext.html", each of which is a page of its
/// own besides ("kontext-1001.html"). Pictures lie in "bilder"; a directory without them makes pages without
/// them. Nothing is read before it is asked for.
class Hilfebuch {
 public:
  explicit Hilfebuch(QString verzeichnis);

  /// Whether a help file is there: "F1.HLP" is the context entries, "Vesk32.HLP" the manual.
  bool Vorhanden(const QString& hilfedatei) const;
  const std::vector<Hilfeseite>& Inhalt();
  /// HTML of a page; nothing when there is none of that name.
  std::optional<QString> Html(const QString& seite);
  /// The picture "bilder/NAME"; a null image when there is none.
  QImage Bild(const QString& name) const;
  /// Numbers that have a context entry, in the order of the file.
  const std::vector<int>& Kontextnummern();
  /// Page for a context number; a number without an entry gets the first one of its block.
  QString Kontextseite(int nummer);
  /// Pages that hold all words of `begriff`, those with a word in the title first.
  std::vector<Fundstelle> Suchen(const QString& begriff);

 private:
  struct Suchseite {
    QString name;
    QString titel;
    QString text;
  };
  std::optional<QString> Lesen(const QString& name) const;
  void KontextLesen();
  void SuchtexteLesen();

  QString verzeichnis_;
  std::optional<std::vector<Hilfeseite>> inhalt_;
  std::optional<std::vector<int>> nummern_;
  QMap<QString, QString> kontext_;  ///< HTML by page name
  std::optional<std::vector<Suchseite>> suchseiten_;
};

/// Title of a page, from its <title>.
QString Seitentitel(const QString& html);

}  // namespace vesk
