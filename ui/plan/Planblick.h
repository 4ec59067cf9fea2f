#pragma once
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <optional>

#include "print/Planbild.h"
#include "station/Planbearbeitung.h"
#include "ui/plan/Werkzeuge.h"

class QLineEdit;

namespace vesk {

class Ablauf;

/// The plan on the screen, to be drawn on by mouse and keyboard.
class Planblick : public QWidget {
  Q_OBJECT
 public:
  Planblick(Ablauf& ablauf, QWidget* eltern);

  void Zeigen(const Station& s);
  void HintergrundZeigen(const QImage& bild);
  void WerkzeugNehmen(Planwerkzeug werkzeug);
  void SchichtenZeigen(const Planschichten& schichten);
  /// How near a corner has to be is the screen's affair.
  void Fangen(const Fang& fang) { fang_ = fang; }
  void WahlZeigen(const std::optional<Planstelle>& wahl);

  void Vergroessern(double faktor);
  void AllesZeigen();
  /// Brings a place into sight.
  void Hinzeigen(Punkt ort);
  const Planabbildung& Abbildung() const { return abbildung_; }

  void WahlLoeschen();
  void EckeEinfuegen();
  /// Of what is being drawn or dragged and is not of the plan yet; false: there is nothing like that.
  bool SchrittZurueck();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void gewaehlt(const std::optional<vesk::Planstelle>& stelle);
  /// The mouse is at this place.
  void ueber(vesk::Punkt ort);
  /// Something is drawn or given up; the tool goes back into its box.
  void fertig();
  /// Empty: nothing to say any more.
  void hinweis(const QString& text);

 protected:
  void paintEvent(QPaintEvent* ereignis) override;
  void resizeEvent(QResizeEvent* ereignis) override;
  void changeEvent(QEvent* ereignis) override;
  void mousePressEvent(QMouseEvent* ereignis) override;
  void mouseMoveEvent(QMouseEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
  void wheelEvent(QWheelEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  void keyReleaseEvent(QKeyEvent* ereignis) override;
  void focusOutEvent(QFocusEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  /// What is being drawn with the present tool.
  struct Strich {
    Umriss ecken;
    Punkt zeiger;  ///< where the next corner would be
  };
  /// An object or a corner that the mouse holds.
  struct Zug {
    Planstelle stelle;
    Punkt griff;   ///< the corner that keeps to the grid, before
    Punkt beginn;  ///< of the mouse
    bool bewegt = false;
  };

  bool Zeichnet() const {
    return Werkzeugzeile(werkzeug_).art.has_value() || werkzeug_ == Planwerkzeug::Eichen;
  }
  const Lageplan& Plan() const { return station_.lageplan; }
  double Fangweite() const;  ///< m
  double JeMillimeter() const;
  Artenwahl SichtbareArten() const;
  Punkt Gefangen(QPointF maus, Qt::KeyboardModifiers tasten) const;

  void Abbilden(const Planabbildung& abbildung);
  void BildZeigen(Planbild bild);
  void BildtextSetzen();
  void Greifen(QPointF maus);
  void Ziehen(QPointF maus, Qt::KeyboardModifiers tasten);
  void Loslassen();
  void ZugAufgeben();
  void EckeSetzen(Punkt punkt);
  void EckeZurueck();
  void StrichZeigen();
  void Schliessen();
  void Anlegen(Planart art, const Umriss& punkte);
  void Eichen(double abstand);
  void Aufgeben();
  void MassUebernehmen();
  void MassVerwerfen();
  void MassfeldZeigen();
  bool TasteBeimZeichnen(const QKeyEvent& taste);
  bool TasteBeimWaehlen(const QKeyEvent& taste);
  void Schieben(Punkt schritte, bool fein);

  Ablauf& ablauf_;
  Station station_;
  Planbild bild_;  ///< of the station, while the mouse drags something of what it would become
  QImage hintergrund_;
  QPixmap gemalt_;  ///< the picture as it stands on the screen; null: to be painted anew
  Planschichten schichten_ = Planschichten().set();
  Fang fang_;
  Planwerkzeug werkzeug_ = Planwerkzeug::Waehlen;
  std::optional<Planstelle> wahl_;
  Planabbildung abbildung_;
  bool eingepasst_ = true;  ///< the user has not chosen a part of the plan
  Strich strich_;
  std::optional<Zug> zug_;
  std::optional<QPointF> schwenk_;  ///< where the mouse holds the plan
  bool leertaste_ = false;
  QLineEdit* txtMass;
};

}  // namespace vesk
