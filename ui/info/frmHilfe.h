#pragma once
#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace vesk {

class Drucker;
class Hilfebuch;
class Meldungsboxen;
class Seitenanzeige;

/// The help window: contents and search at the left, the page at the right.
class frmHilfe : public QMainWindow {
  Q_OBJECT
 public:
  frmHilfe(Hilfebuch& buch, Meldungsboxen& boxen, Drucker& drucker, QWidget* eltern = nullptr);

  /// Shows a page, with an optional mark "#name"; a box if there is no such page.
  void Zeigen(const QString& seite);

 private:
  void Drucken();
  void MenuesAufbauen();
  void AnsichtAufbauen();
  QWidget* InhaltAufbauen();
  QWidget* SucheAufbauen();
  void Aufschlagen(const QUrl& ziel);
  void SeiteGewechselt(const QUrl& adresse);
  void EintragGewaehlt(QTreeWidgetItem* eintrag);
  void Suchen();
  void FundstelleZeigen(QListWidgetItem* fundstelle);
  QString AktuelleSeite() const;

  Hilfebuch& buch_;
  Meldungsboxen& boxen_;
  Drucker& drucker_;
  QString suchworte_;  ///< marked in the page while a hit is shown

  QTabWidget* tabLinks;
  QTreeWidget* treInhalt;
  QLineEdit* txtSuche;
  QListWidget* lstFundstellen;
  Seitenanzeige* anzSeite;
};

}  // namespace vesk
