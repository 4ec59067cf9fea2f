#pragma once
#include <gtest/gtest.h>

#include <QtWidgets>
#include <stdexcept>

namespace vesk {

/// The child of that object name.
template <typename T>
T& Finden(const QObject& wurzel, const QString& name) {
  if (auto* kind = wurzel.findChild<T*>(name)) return *kind;
  throw std::runtime_error("Kein " + name.toStdString() + " in " + wurzel.objectName().toStdString());
}

/// What the user sees behind the text of a control.
inline QColor Hintergrundfarbe(const QWidget& widget) {
  QPalette::ColorRole rolle = QPalette::Window;
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) rolle = QPalette::Base;
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) rolle = QPalette::Button;
  return widget.palette().color(rolle);
}

}  // namespace vesk
