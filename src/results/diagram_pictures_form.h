#pragma once

#include <QSize>
#include <string>

namespace verandis {

/// Writes the diagrams of the last steady-state run that have series as PNG files into a folder,
/// which is made when it is missing; a chart of this size has twice as many pixels each way. False,
/// and a message, when the folder or a file cannot be written, or when there is nothing to draw.
bool SaveDiagramPictures(const std::string& folder, QSize size);

}  // namespace verandis
