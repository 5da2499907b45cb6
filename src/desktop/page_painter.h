// Draws the pages of a report on whatever a QPainter paints on: the screen, an image, a printer.
#pragma once

#include "reports/report_document.h"

#include <QPainter>

namespace tav {

// The painter's unit is the twip and its origin the corner of the paper; the caller has scaled it
// so. Every text stands where the page says and is as wide as the page says, whatever the font at
// hand makes of it. What lies outside the painter's clip is left out.
//
// PaintInk draws text and rules in black, PaintPage white paper beneath. Neither depends on the
// colours of the desktop.
void PaintInk(QPainter& painter, const ReportPage& page);
void PaintPage(QPainter& painter, const ReportPage& page);

}  // namespace tav
