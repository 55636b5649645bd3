#include "gfx/graphics_file_list.h"

#include "data/run_time_error.h"

#include <algorithm>
#include <utility>

namespace gfx {

void GraphicsFileList::append(GraphicsFile file) {
    if (count_ < 0 || static_cast<std::size_t>(count_) >= capacity)
        throw data::RunTimeError(data::ErrorNumber::subscript_out_of_range,
                                 data::Phrase(data::Text::reason_too_many_sets, capacity))
            .within(data::Phrase(data::Text::place_record, count_ + 1));
    files_[static_cast<std::size_t>(count_)] = std::move(file);
    ++count_;
}

void GraphicsFileList::remove(std::string_view set_name) {
    --count_;
    for (std::size_t i = 0; i < saved_records; ++i) {
        // The record that moves up is not compared again, and the last one is never cleared.
        if (files_[i].set_name == set_name)
            std::copy(files_.begin() + static_cast<std::ptrdiff_t>(i) + 1, files_.end(),
                      files_.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

std::span<const GraphicsFile> GraphicsFileList::saved() const {
    const auto end = std::find_if(files_.begin(), files_.begin() + saved_records,
                                  [](const GraphicsFile& file) { return file.kind.empty(); });
    return {files_.begin(), end};
}

} // namespace gfx
