#include "ui/info/Seitenanzeige.h"

#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "ui/info/Hilfebuch.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Gives `dokument` the pictures that `bild` has for their names.
template <typename Bildquelle>
void BilderErsetzen(QTextDocument& dokument, const Bildquelle& bild) {
  for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
    for (auto stueck = block.begin(); !stueck.atEnd(); ++stueck) {
      const QTextImageFormat format = stueck.fragment().charFormat().toImageFormat();
      if (!format.isValid()) continue;
      const QUrl adresse = dokument.baseUrl().resolved(QUrl(format.name()));
      dokument.addResource(QTextDocument::ImageResource, adresse, bild(format.name()));
      dokument.markContentsDirty(block.position(), block.length());
    }
  }
}

}  // namespace

QUrl Seitenadresse(const QString& seite) {
  return QUrl(u"hilfe:/"_s + seite);
}

QString Seitenname(const QUrl& adresse) {
  return adresse.path().mid(1);
}

Seitenanzeige::Seitenanzeige(Hilfebuch& buch, QWidget* eltern) : QTextBrowser(eltern), buch_(buch) {
  setOpenLinks(false);
}

QVariant Seitenanzeige::loadResource(int art, const QUrl& adresse) {
  if (art == QTextDocument::ImageResource) return Bild(adresse.path());
  if (art != QTextDocument::HtmlResource) return {};
  return buch_.Html(Seitenname(adresse)).value_or(QString());
}

QImage Seitenanzeige::Bild(const QString& name) const {
  QImage bild = buch_.Bild(name);
  // The bar appears only when the page is laid out.
  const QScrollBar* leiste = verticalScrollBar();
  const int platz = viewport()->width() - (leiste->isVisible() ? 0 : leiste->sizeHint().width()) -
                    2 * static_cast<int>(document()->documentMargin());
  return bild.width() > platz && platz > 0 ? bild.scaledToWidth(platz, Qt::SmoothTransformation) : bild;
}

void Seitenanzeige::resizeEvent(QResizeEvent* ereignis) {
  QTextBrowser::resizeEvent(ereignis);
  BilderErsetzen(*document(), [this](const QString& name) { return Bild(name); });
}

std::unique_ptr<QTextDocument> Seitenanzeige::Druckfassung() const {
  constexpr double Blattbreite = 640;  // of A4 within margins of 2 cm, in pixels of 96 dpi
  std::unique_ptr<QTextDocument> blatt(document()->clone());
  blatt->setBaseUrl(document()->baseUrl());
  BilderErsetzen(*blatt, [this](const QString& name) {
    QImage bild = buch_.Bild(name);
    bild.setDevicePixelRatio(std::max(1.0, bild.width() / Blattbreite));
    return bild;
  });
  return blatt;
}

void Seitenanzeige::Hervorheben(const QString& begriff) {
  QList<ExtraSelection> stellen;
  for (const QString& wort : begriff.simplified().split(u' ', Qt::SkipEmptyParts)) {
    for (QTextCursor fund = document()->find(wort); !fund.isNull(); fund = document()->find(wort, fund)) {
      ExtraSelection stelle;
      stelle.cursor = fund;
      stelle.format.setBackground(palette().brush(QPalette::Highlight));
      stelle.format.setForeground(palette().brush(QPalette::HighlightedText));
      stellen.append(stelle);
    }
  }
  std::sort(stellen.begin(), stellen.end(), [](const ExtraSelection& a, const ExtraSelection& b) {
    return a.cursor.selectionStart() < b.cursor.selectionStart();
  });
  setExtraSelections(stellen);
  ZurMarkierung(0);
}

void Seitenanzeige::NaechsteMarkierung() {
  ZurMarkierung(markierung_ + 1);
}

void Seitenanzeige::ZurMarkierung(int nummer) {
  const QList<ExtraSelection> stellen = extraSelections();
  if (stellen.isEmpty()) return;
  markierung_ = nummer % static_cast<int>(stellen.size());
  QTextCursor zeiger = stellen.at(markierung_).cursor;
  zeiger.setPosition(zeiger.selectionStart());
  setTextCursor(zeiger);
  ensureCursorVisible();
}

}  // namespace vesk
