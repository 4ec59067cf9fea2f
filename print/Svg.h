#pragma once
#include <QByteArray>

#include "print/Mappe.h"

namespace vesk {

/// One page (from 0) as a drawing of its true size. Letters are letters, so that their text can be found.
QByteArray Svg(const Mappe& mappe, std::size_t seite);

}  // namespace vesk
