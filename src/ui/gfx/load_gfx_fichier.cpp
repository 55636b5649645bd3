#include "gfx/load_gfx_fichier.h"

#include "base/files.h"
#include "data/run_time_error.h"
#include "shell/session.h"

#include <string>

namespace gfx {

void load_gfx_fichier(shell::Session& session, std::string_view kind,
                      std::string_view descriptor_path, std::string_view set_name) {
    const std::string bytes = base::read_file(descriptor_path);
    auto& graphics = session.graphics;
    try {
        graphics.files.append({.kind = std::string(kind),
                               .path = std::string(descriptor_path),
                               .set_name = std::string(set_name)});
        graphics.sprites.read_descriptor(bytes, kind, set_name,
                                         session.configuration.graphics_folder);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(descriptor_path));
    }
}

} // namespace gfx
