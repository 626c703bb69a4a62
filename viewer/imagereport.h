#pragma once

#include "cvkintensitywidget.h"
#include "printout.h"

/// Name, texts and numbers of the image that is open, for paper: the statistics of the image and of
/// each region. Without the picture.
Printout imageReport(const CVKIntensityWidget& widget);
