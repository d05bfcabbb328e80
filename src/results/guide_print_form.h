#pragma once

#include <QPagedPaintDevice>

#include "results/design_guide.h"

namespace verandis {

/// Prints the design guide's sheet on a page of its own: case, climate, the table of figures and
/// the conclusion. The device may be a printer or a PDF writer.
void PrintGuide(QPagedPaintDevice& device, const GuideSheet& sheet);

}  // namespace verandis
