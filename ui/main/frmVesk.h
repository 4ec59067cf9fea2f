#pragma once
#include <QMainWindow>
#include <array>

#include "Ausgabe.h"
#include "Zahlenfeld.h"

class QAction;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace vesk {

class Klicklabel;
struct Plattform;
struct Zustand;

/// Main window: inputs, outputs, the two mode switches and the menus. It keeps the record's texts in step
/// with its fields and announces what the user asked for; it calculates nothing itself.
class frmVesk : public QMainWindow {
  Q_OBJECT
 public:
  frmVesk(Zustand& zustand, Plattform& plattform);
  ~frmVesk() override;

  Modus modus() const;
  bool AFu() const;
  bool MeldungenAn() const;
  QAction& Aktion(const char* name) const;

  /// From now on a calculation writes its results and leaving a field is answered.
  void Scharfschalten();
  /// The program ends: nothing is answered any more.
  void Entschaerfen();
  /// Whether the mark of the calculate button lets a calculation write fields.
  bool Ausgeben() const;

  /// Copies the five input texts into the record.
  void TexteUebernehmen();
  /// The same, after treating the input in focus as left, without moving the focus or calculating.
  void Uebernehmen();
  /// The calculate button is held down by the mouse.
  bool BerechnenGedrueckt() const;
  void QrgFokussieren();
  /// Frequency and power (or distance) must be numbers above 0. Colours the two fields; no message.
  bool EingabenGueltig();
  void switchLeistung();
  /// Distance mode, also when it is on already: inputs and outputs are emptied, the inputs shown again from
  /// the record except the power.
  void AbstandEinschalten();
  /// Shows the five input texts of the record as they stand.
  void EingabenZeigen();
  /// Caption and tooltips of the frequency label for the check mark of mnuAFu.
  void AFuZeigen();
  /// Fills or empties the window's tooltips; the caption of the frequency label follows in both cases.
  void TooltipsZeigen(bool an);

  void KoepfeZeigen(const Feldtexte& texte);
  void KoepfeZuruecksetzen();
  /// Writes the texts and colours of a calculation as far as it got.
  void ErgebnisZeigen(const Rechenergebnis& ergebnis, const Feldtexte& texte, float faktor);
  /// Caption of the copy button for the letter of the next free column; without one it is disabled.
  void KopierknopfZeigen(const QString& buchstabe);
  void KopierenErlauben(bool erlaubt);
  /// The calculation has been copied: the focus goes back to the calculate button, once is enough.
  void NachKopieren();
  QString Ergebnis(Feld feld) const;

 Q_SIGNALS:
  void berechnenVerlangt();
  /// The mouse has let the calculate button go, on it or beside it; before berechnenVerlangt.
  void berechnenLosgelassen();
  void kopierenVerlangt();
  void modusGeklickt();
  void qrgGeklickt();
  void qrgVerlassen();
  void pwrVerlassen(const QString& text);
  void geschlossen();

 protected:
  void closeEvent(QCloseEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  struct Eingabe {
    Zahlenfeld* feld;
    std::string Rechenwerte::*text;
  };

  QWidget* ModusAnlegen();
  QWidget* EingabenAnlegen();
  QWidget* AusgabenAnlegen();
  void DreierzeileAnlegen(QGridLayout& raster, int zeile, QLabel*& titel, const QString& name,
                          const QString& text, std::array<QLineEdit*, 3> felder);
  Klicklabel* Eingabezeile(QGridLayout& raster, const QString& label, const QString& text, Zahlenfeld* feld);
  QLineEdit* Ausgabefeld(const QString& name, const QString& beschreibung);
  void EreignisseVerbinden();
  void Tabfolge();
  void Verlassen(Zahlenfeld* feld);
  bool TasteImFeld(QWidget* feld, int taste);

  void WertNull();
  void WertAusgabeNull();
  void FeldFarben();
  void HSMBlockFaerben(float Uss, bool nahfeld, const std::array<QLineEdit*, 3>& felder,
                       const QColor& farbeUss, const QColor& farbe);

  Zustand& zustand_;
  Plattform& plattform_;
  bool scharf_ = false;

  Klicklabel *lblModus = nullptr, *lblQRG = nullptr;
  QLabel *lblPWR = nullptr, *lblGewinn = nullptr, *lblSicherheit = nullptr, *lblStrahlung = nullptr;
  QLabel *lblGrenzwert = nullptr, *lblUss = nullptr;
  QLabel *lblOhneHSM = nullptr, *lblMitHSM = nullptr, *lblHSM306 = nullptr;
  Zahlenfeld *txtQRG = nullptr, *txtPWR = nullptr, *txtGewinn = nullptr, *txtDaempfung = nullptr,
             *txtWinkelDaempfung = nullptr;
  QLineEdit *txtStrahlung = nullptr, *txtNahfeld = nullptr, *txtFernfeld = nullptr;
  QLineEdit *txtGrenzwert = nullptr, *txtGrenzwertHSMvde = nullptr, *txtGrenzwertHSM306 = nullptr;
  QLineEdit *txtUssVDE = nullptr, *txtUssHSM306 = nullptr;
  QLineEdit *txtAusgabe = nullptr, *txtAusgabeHSMvde = nullptr, *txtAusgabeHSM306 = nullptr;
  QPushButton *cmdBerechnen = nullptr, *cmdCopy = nullptr;
  QListWidget* List1 = nullptr;
  std::array<Eingabe, 5> eingaben_{};
};

}  // namespace vesk
