#pragma once

#include <string_view>

namespace shell {
struct Session;
}

namespace gfx {

/// Reads the sprite descriptor file with that stored path into the kind's sprites, under the set
/// name, and adds it to the graphics file list, whatever the kind. Throws what the reading of the
/// file throws, before anything has changed, and what the list and the sprites throw, with the file
/// in the place.
void load_gfx_fichier(shell::Session& session, std::string_view kind,
                      std::string_view descriptor_path, std::string_view set_name);

} // namespace gfx
