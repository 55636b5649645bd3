#include "shell/configuration.h"

#include "data/records.h"
#include "targets.h"

namespace {

/// Returns config.txt as it would be written after the bytes were read.
std::string rewritten(std::string_view bytes) {
    shell::Configuration configuration;
    gfx::GraphicsFileList files;
    shell::read_configuration(bytes, configuration,
                              [&](const gfx::GraphicsFile& file) { files.append(file); });
    return shell::write_configuration(configuration, files);
}

/// Returns whether a text holds a quote, which no text keeps when it is written.
bool has_quote(std::string_view bytes) {
    data::RecordReader reader(bytes);
    bool found = false;
    while (!reader.at_end())
        found = reader.next().find('"') != std::string::npos || found;
    return found;
}

} // namespace

void fuzz::configuration(std::string_view bytes) {
    std::string written;
    if (accepts([&] { written = rewritten(bytes); }) && !has_quote(bytes))
        assert(rewritten(written) == written);
}
