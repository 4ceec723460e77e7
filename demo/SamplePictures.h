// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "demo/PdfPage.h"

namespace vell::demo {

enum class Motif { Harbour, City, WindPark, Chart };

// A press picture for sample clippings, drawn for this service, as printed on newspaper.
[[nodiscard]] Picture pressPicture(Motif motif, int width, double coarseness);

// The advertisement that goes with every day's list, a JPEG file.
[[nodiscard]] std::string advertisementPicture();

}  // namespace vell::demo
