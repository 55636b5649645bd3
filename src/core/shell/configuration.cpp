#include "shell/configuration.h"

#include "data/numbers.h"
#include "data/records.h"
#include "data/run_time_error.h"
#include "data/text.h"

#include <algorithm>
#include <array>

namespace shell {

namespace {

/// A key of config.txt and where its value goes; in the order of the file's lines.
struct Key {
    std::string_view word;
    std::string Configuration::*value;
    std::int16_t Configuration::*flag = nullptr; // the record's third field, else 0
};

constexpr std::array<Key, 6> keys = {{
    {"GFX", &Configuration::graphics_folder},
    {"GFX2", &Configuration::terrain_art_folder, &Configuration::terrain_art_flag},
    {"CSV", &Configuration::province_file_path},
    {"CSV2", &Configuration::province_save_path},
    {"BMP", &Configuration::map_bitmap_path},
    {"LAN", &Configuration::language_file},
}};

void take_record(const gfx::GraphicsFile& record, Configuration& configuration,
                 const GraphicsRecord& receive) {
    const auto* key = std::find_if(keys.begin(), keys.end(), [&](const Key& candidate) {
        return data::equal_ignoring_case(candidate.word, record.kind);
    });
    if (key == keys.end()) {
        receive(record);
        return;
    }
    if (key->flag)
        configuration.*key->flag = data::to_int16(data::leading_number(record.set_name),
                                                  data::Phrase(data::Text::place_flag));
    configuration.*key->value = record.path;
}

} // namespace

void read_configuration(std::string_view bytes, Configuration& configuration,
                        const GraphicsRecord& receive) {
    data::RecordReader reader(bytes);
    while (!reader.at_end()) {
        gfx::GraphicsFile record{.kind = reader.next(), .path = {}, .set_name = {}};
        const int line = reader.line();
        record.path = reader.next();
        record.set_name = reader.next();
        try {
            take_record(record, configuration, receive);
        } catch (const data::RunTimeError& error) {
            throw error.within(record.path + ", " + record.set_name)
                .within(data::Phrase(data::Text::place_record, record.kind))
                .within(data::Phrase(data::Text::place_line, line));
        }
    }
}

std::string write_configuration(const Configuration& configuration,
                                const gfx::GraphicsFileList& graphics_files) {
    using data::quoted;
    std::string bytes;
    for (const auto& key : keys) {
        const int flag = key.flag ? configuration.*key.flag : 0;
        bytes += quoted(key.word) + "," + quoted(configuration.*key.value) + "," +
                 std::to_string(flag) + "\r\n";
    }
    for (const auto& file : graphics_files.saved())
        bytes += quoted(file.kind) + "," + quoted(file.path) + "," + quoted(file.set_name) + "\r\n";
    return bytes;
}

} // namespace shell
