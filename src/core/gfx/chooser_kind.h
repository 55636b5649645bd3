#pragma once

namespace gfx {

/// What the location chooser chooses: the folder of the sprite descriptors, the folder of the
/// terrain art, the province file to read, the one to write, a map bitmap.
enum class ChooserKind { GFX, GFX2, CSV, CSV2, BMP };

} // namespace gfx
