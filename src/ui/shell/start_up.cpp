#include "shell/start_up.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "gfx/load_gfx_fichier.h"
#include "shell/session.h"

#include <QFileInfo>

namespace shell {

namespace {

/// What is wrong with the configuration is told in the language that its lines so far name, where
/// that can be read.
void take_language_so_far(Session& session) {
    try {
        session.language = read_language_file(session, session.configuration.language_file);
    } catch (const data::RunTimeError&) {
        // It is told in English.
    }
}

void read_configuration_file(const std::string& path, Session& session, SpriteSets sprite_sets) {
    const std::string bytes = base::read_file(path);
    try {
        read_configuration(bytes, session.configuration, [&](const gfx::GraphicsFile& file) {
            if (sprite_sets == SpriteSets::load)
                gfx::load_gfx_fichier(session, file.kind, file.path, file.set_name);
        });
    } catch (const data::RunTimeError& error) {
        take_language_so_far(session);
        throw error.within(base::shown_path(path));
    }
}

} // namespace

Run start_up(Session& session, SpriteSets sprite_sets) {
    const std::string path = base::in_folder(session.program_folder, configuration_file);
    const Run run = QFileInfo(base::native_path(path)).isFile() ? Run::later : Run::first;
    if (run == Run::later)
        read_configuration_file(path, session, sprite_sets);
    const std::string& language_file = session.configuration.language_file;
    try {
        session.language = read_language_file(session, language_file);
    } catch (const data::RunTimeError& error) {
        if (run == Run::first)
            throw;
        throw error.within(base::shown_path(path) + ", record LAN, " + language_file);
    }
    return run;
}

LanguageTexts read_language_file(const Session& session, const std::string& name) {
    const std::string path = base::in_folder(session.program_folder, name);
    const std::string bytes = base::read_file(path);
    try {
        return LanguageTexts(bytes);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
}

} // namespace shell
