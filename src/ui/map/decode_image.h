#pragma once

#include <QImage>

#include <string_view>

namespace map {

/// Decodes the whole image at the stored path, of any format that Qt reads. The result has 32-bit
/// RGB pixels, or 8 bits a pixel and 256 colours where the file has no more; every pixel of it is
/// opaque. Throws what reading a file throws, and path/file access error with the file and what was
/// expected for one that is no image, is cut short, or is larger than memory is granted for.
QImage decode_image(std::string_view path);

} // namespace map
