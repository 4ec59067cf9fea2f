#pragma once
#include <QByteArray>
#include <QDateTime>
#include <functional>

#include "print/Mappe.h"

namespace vesk {

/// The papers as a PDF with title, author (the callsign), date, and one bookmark for each document. The same
/// papers and time give the same bytes. `fortschritt` is told before each page how many are done, of how
/// many, and may end the work: then, and without a page, it is empty. Needs a QGuiApplication, which may be
/// one without a display. Throws std::runtime_error when the program is not installed whole.
QByteArray Pdf(const Mappe& mappe, const QDateTime& zeit,
               const std::function<bool(std::size_t fertig, std::size_t von)>& fortschritt = {});

}  // namespace vesk
