#pragma once
#include <QTextBrowser>
#include <memory>

namespace vesk {

class Hilfebuch;

/// Shows pages of the help under addresses "hilfe:/name.html", pictures at most as wide as itself. Links are
/// told, not followed.
class Seitenanzeige : public QTextBrowser {
  Q_OBJECT
 public:
  explicit Seitenanzeige(Hilfebuch& buch, QWidget* eltern = nullptr);

  QVariant loadResource(int art, const QUrl& adresse) override;
  /// Marks all occurrences of the words of `begriff` and goes to the first one; nothing: takes the marks
  /// away.
  void Hervorheben(const QString& begriff);
  /// Goes to the next marked place, after the last one to the first.
  void NaechsteMarkierung();
  /// The page as it is printed: pictures at most as wide as the paper, in their full resolution.
  std::unique_ptr<QTextDocument> Druckfassung() const;

 protected:
  void resizeEvent(QResizeEvent* ereignis) override;

 private:
  void ZurMarkierung(int nummer);
  QImage Bild(const QString& name) const;

  Hilfebuch& buch_;
  int markierung_ = 0;
};

/// Address of a page "name.html" or "name.html#mark".
QUrl Seitenadresse(const QString& seite);
/// Page name in an address, without the mark.
QString Seitenname(const QUrl& adresse);

}  // namespace vesk
