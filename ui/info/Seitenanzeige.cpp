#include "ui/info/Seitenanzeige.h"

#include <QTextBlock>
#include <algorithm>

#include "ui/info/Hilfebuch.h"

using namespace Qt::StringLiterals;

namespace vesk {

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
  if (art != QTextDocument::HtmlResource) return {};
  return buch_.Html(Seitenname(adresse)).value_or(QString());
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
