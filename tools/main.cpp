#include "sample.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <optional>
#include <string_view>
#include <system_error>

namespace {

constexpr const char* usage =
    "make-sample DIR [--size WIDTHxHEIGHT]\n"
    "Writes a sample world into the folder DIR: maps, Province.csv, sprites, terrain art, the\n"
    "language files beside this program, and config.txt where there is none yet.\n"
    "  --size WIDTHxHEIGHT  pixels of the maps, 2400x1200 if not given; at least 400x200\n";

constexpr int least_width = 400;
constexpr int least_height = 200;
constexpr int most = 32767; // the editor stores Y in 16 bits

/// Returns the size that a text such as "2400x1200" gives; nothing for any other text.
std::optional<sample::Size> to_size(std::string_view text) {
    sample::Size size;
    const char* end = text.data() + text.size();
    const auto [width_end, width_error] = std::from_chars(text.data(), end, size.width);
    if (width_error != std::errc() || width_end == end || *width_end != 'x')
        return std::nullopt;
    const auto [height_end, height_error] = std::from_chars(width_end + 1, end, size.height);
    if (height_error != std::errc() || height_end != end)
        return std::nullopt;
    const bool fits = size.width >= least_width && size.width <= most &&
                      size.height >= least_height && size.height <= most;
    return fits ? std::optional(size) : std::nullopt;
}

/// Returns the folder of this program, whatever link it was called by where the system tells.
std::filesystem::path own_folder(const char* called_as) {
    std::error_code failure;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
    return (failure ? std::filesystem::absolute(called_as) : program).parent_path();
}

/// Returns what the command line asks for; nothing when it is wrong.
std::optional<sample::Request> to_request(int argc, char** argv) {
    sample::Request request;
    request.languages = own_folder(argv[0]);
    for (int index = 1; index < argc; ++index) {
        const std::string_view argument = argv[index];
        if (argument == "--size" && index + 1 < argc) {
            const auto size = to_size(argv[++index]);
            if (!size)
                return std::nullopt;
            request.pixels = *size;
        } else if (!argument.starts_with('-') && request.folder.empty()) {
            request.folder = argument;
        } else {
            return std::nullopt;
        }
    }
    return request.folder.empty() ? std::nullopt : std::optional(request);
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--help") {
        std::fputs(usage, stdout);
        return 0;
    }
    const auto request = to_request(argc, argv);
    if (!request) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        sample::make_sample(*request);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make-sample: %s\n", error.what());
        return 1;
    }
    return 0;
}
