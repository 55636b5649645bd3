#pragma once

#undef NDEBUG // what a target asserts is asserted in every build
#include "data/run_time_error.h"

#include <array>
#include <cassert>
#include <string_view>

/// What must hold for a parser, whatever bytes it is given. A target hands the bytes to one parser
/// and asserts what is true of every result; an exception that leaves the target is a finding, too.
namespace fuzz {

void assignment(std::string_view bytes);
void backup_names(std::string_view bytes);
void bitmap(std::string_view bytes);
void configuration(std::string_view bytes);
void descriptor(std::string_view bytes);
void file_check(std::string_view bytes);
void language(std::string_view bytes);
void numbers(std::string_view bytes);
void province_file(std::string_view bytes);
void records(std::string_view bytes);
void round_trip(std::string_view bytes);
void selection(std::string_view bytes);

struct Target {
    std::string_view name; // of its file in targets/ and its folder in corpus/
    void (*run)(std::string_view bytes);
};

inline constexpr std::array<Target, 12> targets = {{
    {"assignment", assignment},
    {"backup_names", backup_names},
    {"bitmap", bitmap},
    {"configuration", configuration},
    {"descriptor", descriptor},
    {"file_check", file_check},
    {"language", language},
    {"numbers", numbers},
    {"province_file", province_file},
    {"records", records},
    {"round_trip", round_trip},
    {"selection", selection},
}};

/// Returns whether `parse` took its input; only a run-time error refuses it.
template <typename Parse>
bool accepts(Parse parse) {
    try {
        parse();
        return true;
    } catch (const data::RunTimeError&) {
        return false;
    }
}

} // namespace fuzz
