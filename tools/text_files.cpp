#include "text_files.h"

#include <fstream>
#include <iterator>

namespace sample {

namespace {

/// Returns the stream, which throws from now on, with the file open.
template <class Stream>
Stream opened(const std::filesystem::path& path) {
    Stream stream(path, std::ios::binary);
    if (!stream)
        throw std::ios_base::failure(path.string() + " cannot be opened");
    stream.exceptions(std::ios::badbit);
    return stream;
}

} // namespace

std::string read_file(const std::filesystem::path& path) {
    auto file = opened<std::ifstream>(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write_file(const std::filesystem::path& path, std::string_view bytes) {
    auto file = opened<std::ofstream>(path);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        throw std::ios_base::failure(path.string() + " cannot be written");
}

} // namespace sample
